#include "fileformat/seleccion.h"

#include <climits>
#include <iterator>

#include "fileformat/export2007.h"
#include "fileformat/export2008.h"
#include "fileformat/export2011.h"
#include "fileformat/export2014.h"

namespace zerbal::fileformat {
namespace {

// Latest period first; the first row whose start the year reaches is its own.
constexpr YearWriters kPeriods[] = {
    {2014, Export2014::GenerarReg0, Export2014::GenerarReg1, Export2014::GenerarReg2,
     Export2014::GenerarReg3},
    {2011, Export2011::GenerarReg0, Export2011::GenerarReg1, Export2014::GenerarReg2,
     Export2011::GenerarReg3},
    {2008, Export2007::GenerarReg0, Export2008::GenerarReg1, Export2008::GenerarReg2,
     Export2008::GenerarReg3},
    {INT32_MIN, Export2007::GenerarReg0, Export2007::GenerarReg1, Export2007::GenerarReg2,
     Export2007::GenerarReg3},
};

}  // namespace

const YearWriters& WritersFor(int32_t lngEjercicio) {
  for (const YearWriters& period : kPeriods) {
    if (lngEjercicio >= period.desde) return period;
  }
  return kPeriods[std::size(kPeriods) - 1];  // not reached: the last row starts at INT32_MIN
}

}  // namespace zerbal::fileformat
