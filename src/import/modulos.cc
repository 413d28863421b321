#include "import/modulos.h"

#include <limits>
#include <span>

#include "import/importacion_2014.h"

namespace zerbal::Importacion {
namespace {

constexpr int32_t kSiempre = std::numeric_limits<int32_t>::min();
constexpr int32_t kNunca = std::numeric_limits<int32_t>::max();

template <typename T>
struct Tramo {
  int32_t desde;
  int32_t hasta;
  T modulo;
};

template <typename T>
T Buscar(std::span<const Tramo<T>> tramos, int32_t ejercicio) {
  for (const Tramo<T>& tramo : tramos) {
    if (ejercicio >= tramo.desde && ejercicio <= tramo.hasta) return tramo.modulo;
  }
  return T{};
}

constexpr Par kDeclarados2014 = {
    [](std::string_view linea, bool&) { return Importacion_2014::LeerDeclarado_2014(linea); },
    Importacion_2014::ValidarDeclarado_2014, 500};
constexpr Par kArrendamientos2014 = {Importacion_2014::LeerArrendamiento_2014,
                                     Importacion_2014::ValidarArrendamiento_2014, 174};

// Importacion_2007, Importacion_2008 and Importacion_2011 are still to come.
constexpr Tramo<const Par*> kDeclarados[] = {
    {kSiempre, 2007, nullptr},
    {2008, 2010, nullptr},
    {2011, 2013, nullptr},
    {2014, kNunca, &kDeclarados2014},
};

constexpr Tramo<const Par*> kArrendamientos[] = {
    {kSiempre, 2007, nullptr},
    {2008, 2013, nullptr},
    {2014, kNunca, &kArrendamientos2014},
};

// ConvDelEstatal_2007, _2008, _2011 and _2014, by the line's year.
constexpr Tramo<Conversor> kConversores[] = {
    {kSiempre, 2007, nullptr},
    {2008, 2010, nullptr},
    {2011, 2013, nullptr},
    {2014, kNunca, nullptr},
};

}  // namespace

const Par* ParDeclarados(int32_t lngEjercicio) {
  return Buscar<const Par*>(kDeclarados, lngEjercicio);
}

const Par* ParArrendamientos(int32_t lngEjercicio) {
  return Buscar<const Par*>(kArrendamientos, lngEjercicio);
}

Conversor ConversorEstatal(int32_t lngEjercicio) {
  return Buscar<Conversor>(kConversores, lngEjercicio);
}

}  // namespace zerbal::Importacion
