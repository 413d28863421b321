#include "import/cortes.h"

#include <string>
#include <unordered_map>

#include "base/convert.h"
#include "base/text.h"
#include "fileformat/pesetas.h"
#include "import/importacion.h"
#include "reference/general.h"

namespace zerbal::Importacion {
namespace {

struct NameHash {
  using is_transparent = void;
  size_t operator()(std::string_view name) const { return std::hash<std::string_view>{}(name); }
};

}  // namespace

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

int32_t Lugar(const Variant& vBufferValores, std::string_view nombre) {
  const Array& valores = vBufferValores.AsArray();
  auto named = [&](int32_t k) {
    const Variant& name = valores(k, 1);
    return name.Kind() == VarKind::kString && name.AsString() == nombre;
  };
  // The buffers of one period put each name in the same place, line after
  // line: the place where a name was last found is looked at first.
  thread_local std::unordered_map<std::string, int32_t, NameHash, std::equal_to<>> last;
  if (const auto it = last.find(nombre);
      it != last.end() && it->second <= valores.UBound(1) && named(it->second)) {
    return it->second;
  }
  for (int32_t k = 1; k <= valores.UBound(1); ++k) {
    if (!named(k)) continue;
    last.insert_or_assign(std::string(nombre), k);
    return k;
  }
  return 0;
}

std::string Valor(const Variant& vBufferValores, std::string_view nombre) {
  const int32_t k = Lugar(vBufferValores, nombre);
  return k > 0 ? CStr(vBufferValores(k, 0)) : std::string();
}

void EnEuros(Variant& vBufferValores, std::string_view nombre, bool Convertir) {
  const int32_t k = Lugar(vBufferValores, nombre);
  if (!Convertir || k == 0) return;
  const std::string pesetas = CStr(vBufferValores(k, 0));
  if (pesetas.empty() || !SoloCifras(pesetas)) return;
  vBufferValores(k, 0) = General::FormatoNumero(fileformat::CentimosDePesetas(Val(pesetas)),
                                                static_cast<int16_t>(Len(pesetas)), "0");
}

void PaisArrendamiento(Variant& vBufferValores) {
  const int32_t k = Lugar(vBufferValores, "Pais");
  if (k == 0) return;
  vBufferValores(k, 0) = Trim(Valor(vBufferValores, "NIFPRE")).empty() ? "OP" : "";
}

}  // namespace zerbal::Importacion
