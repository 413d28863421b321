#include "import/modulos.h"

#include <limits>
#include <span>

#include "import/importacion_2007.h"
#include "import/importacion_2008.h"
#include "import/importacion_2011.h"
#include "import/importacion_2014.h"

namespace zerbal::Importacion {
namespace {

constexpr int32_t kSiempre = std::numeric_limits<int32_t>::min();
constexpr int32_t kNunca = std::numeric_limits<int32_t>::max();

struct Tramo {
  int32_t desde;
  int32_t hasta;
  const Par* par;
};

// The ranges of a table cover every year, from the first to the last.
const Par& Buscar(std::span<const Tramo> tramos, int32_t ejercicio) {
  for (const Tramo& tramo : tramos) {
    if (ejercicio <= tramo.hasta) return *tramo.par;
  }
  return *tramos.back().par;
}

constexpr Par kDeclarados2014 = {
    [](std::string_view linea, bool&) { return Importacion_2014::LeerDeclarado_2014(linea); },
    Importacion_2014::ValidarDeclarado_2014, 500};
constexpr Par kDeclarados2011 = {
    [](std::string_view linea, bool&) { return Importacion_2011::LeerDeclarado_2011(linea); },
    Importacion_2011::ValidarDeclarado_2011, 500};
constexpr Par kDeclarados2008 = {Importacion_2008::LeerDeclarado_2008,
                                 Importacion_2008::ValidarDeclarado_2008, 164};
constexpr Par kDeclarados2007 = {Importacion_2007::LeerDeclarado_2007,
                                 Importacion_2007::ValidarDeclarado_2007, 164};
constexpr Par kArrendamientos2014 = {Importacion_2014::LeerArrendamiento_2014,
                                     Importacion_2014::ValidarArrendamiento_2014, 174};
constexpr Par kArrendamientos2008 = {Importacion_2008::LeerArrendamiento_2008,
                                     Importacion_2008::ValidarArrendamiento_2008, 174};
constexpr Par kArrendamientos2007 = {Importacion_2007::LeerArrendamiento_2007,
                                     Importacion_2007::ValidarArrendamiento_2007, 174};

constexpr Tramo kDeclarados[] = {
    {kSiempre, 2007, &kDeclarados2007},
    {2008, 2010, &kDeclarados2008},
    {2011, 2013, &kDeclarados2011},
    {2014, kNunca, &kDeclarados2014},
};

constexpr Tramo kArrendamientos[] = {
    {kSiempre, 2007, &kArrendamientos2007},
    {2008, 2013, &kArrendamientos2008},
    {2014, kNunca, &kArrendamientos2014},
};

}  // namespace

const Par& ParDeclarados(int32_t lngEjercicio) { return Buscar(kDeclarados, lngEjercicio); }

const Par& ParArrendamientos(int32_t lngEjercicio) {
  return Buscar(kArrendamientos, lngEjercicio);
}

}  // namespace zerbal::Importacion
