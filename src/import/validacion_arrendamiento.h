// The checks of a rental line (record 3), shared by the validators of every
// period: each lists the checks of its fields by name and runs them with
// ValidarArrendamiento. Every check writes straight to the errors buffer:
// a blank amount records both 36 and 41.

#ifndef ZERBAL_IMPORT_VALIDACION_ARRENDAMIENTO_H_
#define ZERBAL_IMPORT_VALIDACION_ARRENDAMIENTO_H_

#include <cstdint>
#include <span>
#include <string>

#include "import/validacion.h"
#include "zerbal/variant.h"

namespace zerbal::Importacion {

class ValidacionArrendamiento : public Validacion {
 public:
  // `blnPaisNumerico`: the country is a numeric code (2007 and before).
  ValidacionArrendamiento(const Variant& valores, const std::string& mdblec, int32_t max,
                          int32_t min, bool blnPaisNumerico);

  // Prov: the lessee's NIF and country, then the province.
  void Residencia(const std::string& prov);
  // The signed amount of 2014 on.
  void Importe(const std::string& v);
  void Via(const std::string& v);
  void Domicilio(const std::string& v);
  void Numero(const std::string& v);
  // The premises' municipality, checked up to 2007 (18).
  void Municipio(const std::string& v);

 private:
  bool pais_numerico_;
};

using ReglaArrendamiento = Validacion::Regla<ValidacionArrendamiento>;

// The total length (24, alone when it fails), then the checks of every
// field. Failures not the data's are raised with `strOrigen` as source.
Variant ValidarArrendamiento(const char* strOrigen, bool blnPaisNumerico,
                             std::span<const ReglaArrendamiento> reglas,
                             const Variant& vBufferValores, int16_t intLimite,
                             const std::string& mdblec, int32_t EjercicioMax,
                             int32_t EjercicioMin);

}  // namespace zerbal::Importacion

#endif  // ZERBAL_IMPORT_VALIDACION_ARRENDAMIENTO_H_
