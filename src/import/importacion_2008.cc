// Operation lines of declarations of 2008 to 2010, rental lines of 2008 to
// 2013.

#include "import/cortes_arrendamiento.h"
#include "import/cortes_declarado.h"
#include "import/importacion_2008.h"
#include "import/validacion_arrendamiento.h"
#include "import/validacion_declarado.h"

namespace zerbal::Importacion_2008 {
namespace {

using namespace Importacion;
using V = ValidacionArrendamiento;

constexpr ReglaArrendamiento kReglas[] = {
    {"Modelo", &V::Modelo},       {"Ejercicio", &V::Ejercicio},    {"Prov", &V::Residencia},
    {"Nombre", &V::Nombre},       {"Importe", &V::ImporteSinSigno}, {"Via", &V::Via},
    {"Domicilio", &V::Domicilio}, {"Numero", &V::Numero},
};

}  // namespace

Variant LeerDeclarado_2008(std::string_view strLinea, bool& Convertir) {
  Variant valores = Cortar(strLinea, kCortesDeclarado_2008, 15);
  EnEuros(valores, "Importe", Convertir);
  return valores;
}

Variant ValidarDeclarado_2008(const Variant& vBufferValores, int16_t intLimite,
                              const std::string& mdblec, const std::string& mdbmod,
                              int32_t EjercicioMax, int32_t EjercicioMin,
                              const std::string& Declaracion) {
  return ValidarDeclarado("Importacion.ValidarDeclarado_2008",
                          Periodo{.signo = false, .exencion = false, .cruces = false},
                          kReglasSinSigno, vBufferValores, intLimite, mdblec, mdbmod,
                          EjercicioMax, EjercicioMin, Declaracion);
}

Variant LeerArrendamiento_2008(std::string_view strLinea, bool& Convertir) {
  Variant valores = Cortar(strLinea, kCortesArrendamiento_2008, 17);
  PaisArrendamiento(valores);
  EnEuros(valores, "Importe", Convertir);
  return valores;
}

Variant ValidarArrendamiento_2008(const Variant& vBufferValores, int16_t intLimite,
                                  const std::string& mdblec, const std::string& /*mdbmod*/,
                                  int32_t EjercicioMax, int32_t EjercicioMin,
                                  const std::string& /*Declaracion*/) {
  return ValidarArrendamiento("Importacion.ValidarArrendamiento_2008", false, kReglas,
                              vBufferValores, intLimite, mdblec, EjercicioMax, EjercicioMin);
}

}  // namespace zerbal::Importacion_2008
