// Declared-operation lines of declarations of 2011 to 2013.

#include "import/cortes_declarado.h"
#include "import/importacion_2011.h"
#include "import/validacion_declarado.h"

namespace zerbal::Importacion_2011 {

using namespace Importacion;

Variant LeerDeclarado_2011(std::string_view strLinea) {
  return Cortar(strLinea, kCortesDeclarado_2011, 24);
}

Variant ValidarDeclarado_2011(const Variant& vBufferValores, int16_t intLimite,
                              const std::string& mdblec, const std::string& mdbmod,
                              int32_t EjercicioMax, int32_t EjercicioMin,
                              const std::string& Declaracion) {
  return ValidarDeclarado("Importacion.ValidarDeclarado_2011",
                          Periodo{.signo = false, .exencion = false}, kReglasConSigno,
                          vBufferValores, intLimite, mdblec, mdbmod, EjercicioMax, EjercicioMin,
                          Declaracion);
}

}  // namespace zerbal::Importacion_2011
