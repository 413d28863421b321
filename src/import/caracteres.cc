// The checks a line gets before it is split: its characters, its record
// type and its fiscal year.

#include <string>

#include "base/text.h"
#include "import/errores.h"
#include "import/importacion.h"

namespace zerbal::Importacion {
namespace {

constexpr unsigned char kPermitidosAltos[] = {160, 161, 170, 173, 176, 186, 191, 193,
                                              199, 201, 205, 209, 211, 215, 218, 220,
                                              225, 231, 233, 237, 241, 243, 250, 252};

constexpr std::array<bool, 256> Construir() {
  std::array<bool, 256> tabla{};
  for (int code = 32; code <= 126; ++code) tabla[code] = true;
  tabla['^'] = tabla['`'] = tabla['|'] = false;
  for (unsigned char code : kPermitidosAltos) tabla[code] = true;
  return tabla;
}

constexpr std::array<bool, 256> kTabla = Construir();

}  // namespace

std::array<bool, 256> TablaCaracteres() { return kTabla; }

Variant ValidarCaracteres(std::string_view strLinea) {
  for (size_t pos = 0; pos < strLinea.size();) {
    size_t size = 1;
    const char32_t c = DecodeAt(strLinea, pos, &size);
    const bool no_utf8 = size == 1 && c == 0xFFFD;
    if (no_utf8 || !kTabla[Windows1252Code(c)]) {
      std::string caracter;
      AppendUtf8(&caracter, c);
      return UnError(kCaracterNoPermitido, caracter);
    }
    pos += size;
  }
  return NuevoBufferErrores();
}

bool TipoRegistroValido(std::string_view strLinea) {
  return !strLinea.empty() && strLinea[0] >= '0' && strLinea[0] <= '3';
}

Variant ComprobarEjercicio(std::string_view strLinea, const std::string& strEjercicio) {
  const std::string ejercicio = Mid(strLinea, 5, 4);
  if (ejercicio == strEjercicio) return NuevoBufferErrores();
  return UnError(kEjercicioDistinto, ejercicio + " - " + strEjercicio);
}

}  // namespace zerbal::Importacion
