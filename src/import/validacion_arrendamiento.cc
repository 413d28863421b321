#include "import/validacion_arrendamiento.h"

#include "base/convert.h"
#include "base/raise.h"
#include "base/text.h"
#include "import/errores.h"
#include "import/importacion.h"
#include "import/importacion_2014.h"
#include "import/servicios.h"

namespace zerbal::Importacion {

ValidacionArrendamiento::ValidacionArrendamiento(const Variant& valores,
                                                 const std::string& mdblec, int32_t max,
                                                 int32_t min, bool blnPaisNumerico)
    : Validacion(valores, mdblec, max, min), pais_numerico_(blnPaisNumerico) {}

void ValidacionArrendamiento::Residencia(const std::string& prov) {
  const std::string nif = Valor("NIFPRE");
  const std::string pais = Valor("Pais");
  if (Trim(nif).empty()) {
    if (pais_numerico_) {
      PaisNumerico(pais, true);
    } else if (Trim(pais).empty()) {
      Anadir(kPaisVacio, "");
    }
  } else {
    NifResidente(nif);
    if (pais_numerico_) PaisNumerico(pais, false);
    PaisResidente(pais, pais_numerico_ ? "000" : "");
  }
  Provincia(prov);
}

void ValidacionArrendamiento::Importe(const std::string& v) {
  if (!SoloCifras(Mid(v, 2, 15))) {
    Anadir(kImporteNoNumerico, v);  // with the whole value, sign position included
  }
  Importacion_2014::ComprobarSigno(v, errores_, n_);
  ComprobarVacio(v, errores_, n_, kImporteVacio);
}

void ValidacionArrendamiento::Via(const std::string& v) {
  if (Trim(DescripcionVia(mdblec_, v)).empty()) Anadir(kViaDesconocida, "");
}

void ValidacionArrendamiento::Domicilio(const std::string& v) {
  ComprobarVacioSinTexto(v, errores_, n_, kDomicilioVacio);
}

void ValidacionArrendamiento::Numero(const std::string& v) {
  ComprobarNumerico(v, errores_, n_, kNumeroNoNumerico);
}

void ValidacionArrendamiento::Municipio(const std::string& v) {
  ComprobarVacioSinTexto(v, errores_, n_, kMunicipioArrVacio);
}

Variant ValidarArrendamiento(const char* strOrigen, bool blnPaisNumerico,
                             std::span<const ReglaArrendamiento> reglas,
                             const Variant& vBufferValores, int16_t intLimite,
                             const std::string& mdblec, int32_t EjercicioMax,
                             int32_t EjercicioMin) {
  return WithSource(strOrigen, [&] {
    ValidacionArrendamiento v(vBufferValores, mdblec, EjercicioMax, EjercicioMin,
                              blnPaisNumerico);
    if (v.LongitudTotal(intLimite)) v.PorCampos<ValidacionArrendamiento>(v, reglas);
    return v.Errores();
  });
}

}  // namespace zerbal::Importacion
