#include "import/cortes.h"

#include "base/convert.h"

namespace zerbal::Importacion {

Variant Cortar(std::string_view strLinea, std::span<const Corte> cortes, int32_t intUltimo) {
  Variant valores(Array(0, intUltimo, 0, 1));
  int32_t k = 1;
  for (const Corte& corte : cortes) {
    valores(k, 0) = corte.campo.width > 0 ? fileformat::ReadField(corte.campo, strLinea) : "";
    valores(k, 1) = corte.nombre;
    ++k;
  }
  return valores;
}

std::string Valor(const Variant& vBufferValores, std::string_view nombre) {
  const Array& valores = vBufferValores.AsArray();
  for (int32_t k = 1; k <= valores.UBound(1); ++k) {
    const Variant& name = valores(k, 1);
    if (name.Kind() == VarKind::kString && name.AsString() == nombre) return CStr(valores(k, 0));
  }
  return {};
}

}  // namespace zerbal::Importacion
