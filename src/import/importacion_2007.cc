// Operation and rental lines of declarations of 2007 and before.

#include "import/cortes_arrendamiento.h"
#include "import/cortes_declarado.h"
#include "import/importacion_2007.h"
#include "import/validacion_arrendamiento.h"
#include "import/validacion_declarado.h"

namespace zerbal::Importacion_2007 {
namespace {

using namespace Importacion;
using V = ValidacionArrendamiento;

constexpr ReglaArrendamiento kReglas[] = {
    {"Modelo", &V::Modelo},       {"Ejercicio", &V::Ejercicio},     {"Prov", &V::Residencia},
    {"Nombre", &V::Nombre},       {"Importe", &V::ImporteSinSigno}, {"Municipio", &V::Municipio},
    {"Via", &V::Via},             {"Domicilio", &V::Domicilio},     {"Numero", &V::Numero},
};

}  // namespace

Variant LeerDeclarado_2007(std::string_view strLinea, bool& Convertir) {
  Variant valores = Cortar(strLinea, kCortesDeclarado_2007, 13);
  EnEuros(valores, "Importe", Convertir);
  return valores;
}

Variant ValidarDeclarado_2007(const Variant& vBufferValores, int16_t intLimite,
                              const std::string& mdblec, const std::string& mdbmod,
                              int32_t EjercicioMax, int32_t EjercicioMin,
                              const std::string& Declaracion) {
  return ValidarDeclarado(
      "Importacion.ValidarDeclarado_2007",
      Periodo{.signo = false, .exencion = false, .cruces = false, .pais_numerico = true},
      kReglasSinSigno, vBufferValores, intLimite, mdblec, mdbmod, EjercicioMax, EjercicioMin,
      Declaracion);
}

Variant LeerArrendamiento_2007(std::string_view strLinea, bool& Convertir) {
  Variant valores = Cortar(strLinea, kCortesArrendamiento_2007, 17);
  EnEuros(valores, "Importe", Convertir);
  return valores;
}

Variant ValidarArrendamiento_2007(const Variant& vBufferValores, int16_t intLimite,
                                  const std::string& mdblec, const std::string& /*mdbmod*/,
                                  int32_t EjercicioMax, int32_t EjercicioMin,
                                  const std::string& /*Declaracion*/) {
  return ValidarArrendamiento("Importacion.ValidarArrendamiento_2007", true, kReglas,
                              vBufferValores, intLimite, mdblec, EjercicioMax, EjercicioMin);
}

}  // namespace zerbal::Importacion_2007
