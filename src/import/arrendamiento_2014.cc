// Rental lines (business premises) of declarations of 2014 on.

#include <string>

#include "base/convert.h"
#include "base/raise.h"
#include "base/text.h"
#include "fileformat/layout_reg3.h"
#include "import/cortes.h"
#include "import/errores.h"
#include "import/importacion.h"
#include "import/importacion_2014.h"
#include "import/servicios.h"
#include "import/validacion.h"

namespace zerbal::Importacion_2014 {
namespace {

using namespace Importacion;
using fileformat::kCamposReg3_2014;

constexpr auto C = [](std::string_view nombre, std::string_view campo) {
  return Cortado(nombre, kCamposReg3_2014, campo);
};

constexpr Corte kArrendamiento[] = {
    C("Modelo", "347"),        C("Ejercicio", "ejercicio"), C("CodProv", "cod"),
    C("NIF", "dni_cifd"),      C("NIFPRE", "nifa"),         C("Nombre", "razon"),
    C("Importe", "importe"),   C("Prov", "provi"),          Fijo("Pais"),
    C("Municipio", "municipioa"), C("RefCat", "refcat"),    C("Via", "viaa"),
    C("Domicilio", "domicilioa"), C("Numero", "numeroa"),   C("Escalera", "escaleraa"),
    C("Piso", "pisoa"),        C("Puerta", "puertaa"),
};
constexpr int32_t kPais = 9;

// Every check writes straight to the errors buffer: a blank amount records
// both 36 and 41.
class ValidacionArrendamiento : public Validacion {
 public:
  ValidacionArrendamiento(const Variant& valores, const std::string& mdblec, int32_t max,
                          int32_t min)
      : Validacion(valores, mdblec, max, min) {}

  void Residencia(const std::string& prov) {
    const std::string nif = Valor("NIFPRE");
    const std::string pais = Valor("Pais");
    if (Trim(nif).empty()) {
      if (Trim(pais).empty()) Anadir(kPaisVacio, "");
    } else {
      NifResidente(nif);
      if (!Trim(pais).empty()) Anadir(kPaisResidente, pais);
    }
    Provincia(prov);
  }

  void Importe(const std::string& v) {
    Variant digitos = NuevoBufferErrores();
    int16_t ninguno = 0;
    if (!ComprobarNumerico(Mid(v, 2, 15), digitos, ninguno, kImporteNoNumerico)) {
      Anadir(kImporteNoNumerico, v);  // with the whole value, sign position included
    }
    ComprobarSigno(v, errores_, n_);
    ComprobarVacio(v, errores_, n_, kImporteVacio);
  }

  void Via(const std::string& v) {
    if (Trim(DescripcionVia(mdblec_, v)).empty()) Anadir(kViaDesconocida, "");
  }

  void Domicilio(const std::string& v) { ComprobarVacioSinTexto(v, errores_, n_, kDomicilioVacio); }
  void Numero(const std::string& v) { ComprobarNumerico(v, errores_, n_, kNumeroNoNumerico); }

};

using V = ValidacionArrendamiento;
using Regla = Validacion::Regla<V>;

constexpr Regla kReglas[] = {
    {"Modelo", &V::Modelo},       {"Ejercicio", &V::Ejercicio}, {"Prov", &V::Residencia},
    {"Nombre", &V::Nombre},       {"Importe", &V::Importe},     {"Via", &V::Via},
    {"Domicilio", &V::Domicilio}, {"Numero", &V::Numero},
};

}  // namespace

Variant LeerArrendamiento_2014(std::string_view strLinea, bool& Convertir) {
  Variant valores = Cortar(strLinea, kArrendamiento, 17);
  valores(kPais, 0) = Trim(Valor(valores, "NIFPRE")).empty() ? "OP" : "";
  return valores;
}

Variant ValidarArrendamiento_2014(const Variant& vBufferValores, int16_t intLimite,
                                  const std::string& mdblec, const std::string& mdbmod,
                                  int32_t EjercicioMax, int32_t EjercicioMin,
                                  const std::string& Declaracion) {
  return WithSource("Importacion.ValidarArrendamiento_2014", [&] {
    V v(vBufferValores, mdblec, EjercicioMax, EjercicioMin);
    if (v.LongitudTotal(intLimite)) v.PorCampos<V>(v, kReglas);
    return v.Errores();
  });
}

}  // namespace zerbal::Importacion_2014

