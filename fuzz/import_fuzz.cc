// The import on any lines. The first character of an input picks what
// runs, the rest are lines ("\n" between them):
//   D, S  the driver: every line through cImpExp.importSpte, as `zerbal
//         import` hands a file over (S: in the state agency's layout);
//   1-7   one year's splitter and validator (operations of 2007, 2008,
//         2011, 2014 on; rentals of 2007, 2008, 2014 on) on every line;
//   C     the line checks and the declarant lines' splitters and validator;
//   E     the state-layout converters of every period.
// Any other first character is passed over.
// The databases are made once by `zerbal init`'s code and put back after a
// line has been stored.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "fileformat/conv_del_estatal.h"
#include "fuzz_folder.h"
#include "import/importacion.h"
#include "import/modulos.h"
#include "zerbal/impexp.h"

namespace {

using namespace zerbal;
using fuzz::Tolerating;

constexpr int32_t kEjercicioMin = 2000;
constexpr int32_t kEjercicioMax = 2030;

std::vector<std::string> Lines(std::string_view text) {
  std::vector<std::string> lines;
  size_t start = 0;
  while (start <= text.size()) {
    size_t end = text.find('\n', start);
    if (end == std::string_view::npos) end = text.size();
    lines.emplace_back(text.substr(start, end - start));
    start = end + 1;
  }
  return lines;
}

void Driver(const std::vector<std::string>& lines, bool estatal) {
  const fuzz::FuzzFolder& folder = fuzz::FuzzFolder::Get();
  cImpExp imp;
  imp.mdbmod(folder.data());
  imp.mdblec(folder.lookup());
  imp.EjercicioMin(kEjercicioMin);
  imp.EjercicioMax(kEjercicioMax);
  for (std::string line : lines) {
    Variant errores;
    Tolerating([&] { imp.importSpte(line, errores, estatal, "347.txt"); });
  }
}

void Module(const Importacion::Par& par, const std::vector<std::string>& lines) {
  const fuzz::FuzzFolder& folder = fuzz::FuzzFolder::Get();
  for (const std::string& line : lines) {
    bool convertir = line.size() % 2 == 0;
    const Variant valores = par.leer(line, convertir);
    Tolerating([&] {
      par.validar(valores, par.limite, folder.lookup(), folder.data(), kEjercicioMax,
                  kEjercicioMin, "1");
    });
  }
}

void Declarantes(const std::vector<std::string>& lines) {
  using namespace Importacion;
  for (const std::string& line : lines) {
    ValidarCaracteres(line);
    TipoRegistroValido(line);
    ComprobarEjercicio(line, "2014");
    Tolerating([&] { ValidarDte(LeerDte(line), 164); });
    Tolerating([&] { ValidarDte(LeerDte_Cion(line), 164); });
  }
}

void Conversiones(const std::vector<std::string>& lines) {
  using namespace fileformat;
  for (const std::string& line : lines) {
    for (const ModuloConversion* m : {&ConvDelEstatal_2007, &ConvDelEstatal_2008,
                                      &ConvDelEstatal_2011, &ConvDelEstatal_2014}) {
      m->ConvertirLinea(line, "");
      m->ConvertirDte(line, "");
      m->ConvertirDeclarado(line);
      m->ConvertirInmueble(line);
    }
    ConvertirLineaEstatal(line, "");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size == 0) return 0;
  fuzz::FuzzFolder& folder = fuzz::FuzzFolder::Get();
  const std::vector<std::string> lines =
      Lines(std::string_view(reinterpret_cast<const char*>(data) + 1, size - 1));
  using Importacion::ParArrendamientos;
  using Importacion::ParDeclarados;
  switch (data[0]) {
    case 'D': Driver(lines, false); break;
    case 'S': Driver(lines, true); break;
    case '1': Module(ParDeclarados(2007), lines); break;
    case '2': Module(ParDeclarados(2008), lines); break;
    case '3': Module(ParDeclarados(2011), lines); break;
    case '4': Module(ParDeclarados(2014), lines); break;
    case '5': Module(ParArrendamientos(2007), lines); break;
    case '6': Module(ParArrendamientos(2008), lines); break;
    case '7': Module(ParArrendamientos(2014), lines); break;
    case 'C': Declarantes(lines); break;
    case 'E': Conversiones(lines); break;
    default: return -1;
  }
  folder.RestoreIfChanged();
  return 0;
}
