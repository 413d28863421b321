// The checks of an operation line (record 2), shared by the validators of
// every period; each period's validator lists the checks of its fields by
// name (Validacion::Regla) and calls the cross checks it has. What differs
// from period to period beyond the fields a line holds is a Periodo.

#ifndef ZERBAL_IMPORT_VALIDACION_DECLARADO_H_
#define ZERBAL_IMPORT_VALIDACION_DECLARADO_H_

#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "import/validacion.h"
#include "zerbal/variant.h"

namespace zerbal::Importacion {

struct Periodo {
  bool signo = true;      // the sign position is checked (56): 2014 on
  bool exencion = true;   // quarters of "H" declarants and cash-basis lines (65): 2014 on
  bool cruces = true;     // the cross checks of the amounts: 2011 on
  bool pais_numerico = false;  // numeric country codes (27, 28; no 49): 2007 and before
};

class ValidacionDeclarado : public Validacion {
 public:
  // The buffers and paths are borrowed for the validation.
  ValidacionDeclarado(const Variant& valores, const std::string& mdblec,
                      const std::string& mdbmod, int32_t max, int32_t min,
                      const std::string& declaracion, Periodo periodo);

  // Prov: the checks of a non-resident (province 99) or of a resident.
  void Residencia(const std::string& prov);
  void ClaveOpe(const std::string& v);
  void ClaveRep(const std::string& v);
  void ClaveSeg(const std::string& v);
  void ClaveArr(const std::string& v);
  // Signed amounts (sign position and 15 digits), from 2011.
  void ImpOpe(const std::string& v);
  void ImpTra(const std::string& v);
  void TrimestreOpe(const std::string& v);
  void TrimestreTra(const std::string& v);
  void ImpOpeCaja(const std::string& v);
  void ImpMet(const std::string& v);
  void EjerMet(const std::string& v);
  void OpeCaja(const std::string& v);
  void OpeInve(const std::string& v);
  void OpeRegm(const std::string& v);

  // The cross checks of the amounts (2011 on): 53, 54, 52, 55, 51.
  void Cruces();
  // For a resident party and at most one error so far: 30 when the
  // declaration holds the same party with the same keys.
  void Repetido();

 private:
  struct Borrador;

  void NoResidente();
  void Residente(const std::string& prov);
  void ClaveConX(const std::string& v, int32_t error, const std::string& otra);
  double Trimestre(const std::string& v);
  bool Registrado(const Borrador& b, const std::string& v);
  std::optional<double> ImporteConSigno(const std::string& v);
  void Marca(const std::string& v, int32_t error);

  const std::string& mdbmod_;
  const std::string& declaracion_;
  Periodo periodo_;
  bool exento_ = false;
  double imp_ope_ = 0, imp_tra_ = 0, imp_met_ = 0, imp_ope_caja_ = 0;
  double trimestres_ope_ = 0, trimestres_tra_ = 0;
  int32_t ejer_met_ = 0;
};

using ReglaDeclarado = Validacion::Regla<ValidacionDeclarado>;

// The checks by field name of the lines of 2011 on (a field a period's
// line does not hold is never met) ...
extern const ReglaDeclarado kReglasConSigno[24];
// ... and of 2010 and before, whose amounts Importe, ImpMet and ImpInm
// share one set of checks (ImporteSinSigno).
extern const ReglaDeclarado kReglasSinSigno[11];

// A validator's whole course: the total length (24, alone when it fails),
// the checks of every field, the cross checks when the period has them,
// the duplicate test. Failures not the data's are raised with `strOrigen`
// as their source.
Variant ValidarDeclarado(const char* strOrigen, Periodo periodo,
                         std::span<const ReglaDeclarado> reglas, const Variant& vBufferValores,
                         int16_t intLimite, const std::string& mdblec, const std::string& mdbmod,
                         int32_t EjercicioMax, int32_t EjercicioMin,
                         const std::string& Declaracion);

}  // namespace zerbal::Importacion

#endif  // ZERBAL_IMPORT_VALIDACION_DECLARADO_H_
