// Which year module writes each record type for a fiscal year:
//
//   record   2014 and later   2011 to 2013   2008 to 2010   2007 and earlier
//   0        Export2014       Export2011     Export2007     Export2007
//   1        Export2014       Export2011     Export2008     Export2007
//   2        Export2014       Export2014     Export2008     Export2007
//   3        Export2014       Export2011     Export2008     Export2007

#ifndef ZERBAL_FILEFORMAT_SELECCION_H_
#define ZERBAL_FILEFORMAT_SELECCION_H_

#include <cstdint>
#include <string>

#include "zerbal/variant.h"

namespace zerbal::fileformat {

// The writers of one period, one per record type.
struct YearWriters {
  int32_t desde;  // first fiscal year of the period
  std::string (*GenerarReg0)(const Variant& vBufferPresentador, int32_t lngNoTotalDtes,
                             int32_t lngNoTotalDos, int32_t lngEjercicio);
  std::string (*GenerarReg1)(const Variant& vBufferDeclarante, const Variant& TablaTotales,
                             const std::string& strMoneda, int32_t lngEjercicio);
  std::string (*GenerarReg2)(int32_t lngEjercicio, const Variant& vBufferDeclarado,
                             const Variant& vBufferDeclarante, const std::string& strMoneda);
  Variant (*GenerarReg3)(int32_t lngEjercicio, const Variant& vBufferArrendamiento,
                         const Variant& vBufferDeclarante, const std::string& strMoneda);
};

// The writers for `lngEjercicio`; every year has them (any year before 2008
// is written as 2007).
const YearWriters& WritersFor(int32_t lngEjercicio);

}  // namespace zerbal::fileformat

#endif  // ZERBAL_FILEFORMAT_SELECCION_H_
