// Declared-operation lines of declarations of 2014 on.

#include <string>

#include "base/convert.h"
#include "base/text.h"
#include "import/cortes_declarado.h"
#include "import/errores.h"
#include "import/importacion_2014.h"
#include "import/validacion_declarado.h"

namespace zerbal::Importacion_2014 {

using namespace Importacion;

Variant LeerDeclarado_2014(std::string_view strLinea) {
  return Cortar(strLinea, kCortesDeclarado_2014, 34);
}

void ComprobarSigno(const std::string& strValor, Variant& vBufferErrores, int16_t& intErrores) {
  const std::string signo = Left(strValor, 1);
  if (signo != "N" && !Trim(signo).empty() && signo != "0" && signo != "-") {
    AnadirError(vBufferErrores, intErrores, kSigno, strValor);
  }
}

Variant ValidarDeclarado_2014(const Variant& vBufferValores, int16_t intLimite,
                              const std::string& mdblec, const std::string& mdbmod,
                              int32_t EjercicioMax, int32_t EjercicioMin,
                              const std::string& Declaracion) {
  return ValidarDeclarado("Importacion.ValidarDeclarado_2014", Periodo{}, kReglasConSigno,
                          vBufferValores, intLimite, mdblec, mdbmod, EjercicioMax, EjercicioMin,
                          Declaracion);
}

}  // namespace zerbal::Importacion_2014
