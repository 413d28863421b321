// The small field checks that every validator uses.

#include <string>

#include "base/convert.h"
#include "base/text.h"
#include "import/errores.h"
#include "import/importacion.h"

namespace zerbal::Importacion {

void ComprobarVacio(const std::string& strValor, Variant& vBufferErrores, int16_t& intErrores,
                    int32_t lngError) {
  if (Trim(strValor).empty()) AnadirError(vBufferErrores, intErrores, lngError, strValor);
}

void ComprobarVacioSinTexto(const std::string& strValor, Variant& vBufferErrores,
                            int16_t& intErrores, int32_t lngError) {
  if (Trim(strValor).empty()) AnadirError(vBufferErrores, intErrores, lngError, "");
}

bool SoloCifras(std::string_view strValor) {
  for (char c : strValor) {
    if (c < '0' || c > '9') return false;
  }
  return true;
}

bool ComprobarNumerico(const std::string& strValor, Variant& vBufferErrores, int16_t& intErrores,
                       int32_t lngError) {
  if (SoloCifras(strValor)) return true;
  AnadirError(vBufferErrores, intErrores, lngError, strValor);
  return false;
}

void ComprobarLongitudMinima(const std::string& strValor, Variant& vBufferErrores,
                             int16_t& intErrores, int32_t lngError, int16_t intMinimo) {
  if (Len(strValor) < intMinimo) AnadirError(vBufferErrores, intErrores, lngError, strValor);
}

void ComprobarNoNegativo(const std::string& strValor, Variant& vBufferErrores,
                         int16_t& intErrores, int32_t lngError) {
  if (IsNumeric(strValor) && CDbl(strValor) < 0) {
    AnadirError(vBufferErrores, intErrores, lngError, strValor);
  }
}

bool ComprobarLongitudTotal(const Variant& vBufferValores, Variant& vBufferErrores,
                            int16_t& intErrores, int32_t lngError, int16_t intLimite) {
  const Array& valores = vBufferValores.AsArray();
  int64_t total = 0;
  for (int32_t k = 1; k <= valores.UBound(1); ++k) total += Len(CStr(valores(k, 0)));
  if (total <= intLimite) return true;
  AnadirError(vBufferErrores, intErrores, lngError, "");
  return false;
}

}  // namespace zerbal::Importacion
