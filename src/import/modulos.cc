#include "import/modulos.h"

#include <limits>
#include <span>

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

const Par* Buscar(std::span<const Tramo> tramos, int32_t ejercicio) {
  for (const Tramo& tramo : tramos) {
    if (ejercicio >= tramo.desde && ejercicio <= tramo.hasta) return tramo.par;
  }
  return nullptr;
}

constexpr Par kDeclarados2014 = {
    [](std::string_view linea, bool&) { return Importacion_2014::LeerDeclarado_2014(linea); },
    Importacion_2014::ValidarDeclarado_2014, 500};
constexpr Par kArrendamientos2014 = {Importacion_2014::LeerArrendamiento_2014,
                                     Importacion_2014::ValidarArrendamiento_2014, 174};

// Importacion_2007, Importacion_2008 and Importacion_2011 are still to come.
constexpr Tramo kDeclarados[] = {
    {kSiempre, 2007, nullptr},
    {2008, 2010, nullptr},
    {2011, 2013, nullptr},
    {2014, kNunca, &kDeclarados2014},
};

constexpr Tramo kArrendamientos[] = {
    {kSiempre, 2007, nullptr},
    {2008, 2013, nullptr},
    {2014, kNunca, &kArrendamientos2014},
};

}  // namespace

const Par* ParDeclarados(int32_t lngEjercicio) { return Buscar(kDeclarados, lngEjercicio); }

const Par* ParArrendamientos(int32_t lngEjercicio) {
  return Buscar(kArrendamientos, lngEjercicio);
}

}  // namespace zerbal::Importacion
