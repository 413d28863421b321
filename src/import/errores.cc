#include "import/errores.h"

namespace zerbal::Importacion {

Variant NuevoBufferErrores() { return Variant(Array(0, 1, 0, 0)); }

Variant UnError(int32_t lngError, const std::string& strTexto) {
  Variant buffer = NuevoBufferErrores();
  int16_t count = 0;
  AnadirError(buffer, count, lngError, strTexto);
  return buffer;
}

void AnadirError(Variant& vBufferErrores, int16_t& intErrores, int32_t lngError,
                 const std::string& strTexto) {
  Array& errores = vBufferErrores.AsArray();
  if (intErrores > errores.UBound(2)) errores.ReDimPreserve(intErrores);
  errores(0, intErrores) = lngError;
  errores(1, intErrores) = strTexto;
  ++intErrores;
}

bool HayErrores(const Variant& vBufferErrores) { return !vBufferErrores(0, 0).IsEmpty(); }

}  // namespace zerbal::Importacion
