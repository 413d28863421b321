// Export2011: the writers of records 0, 1 and 3 for fiscal years 2011 to
// 2013, 500 characters a record (record 2 of those years is Export2014's).
// Record 0 is the 2014 record; record 1 has no "AYU" at its end; record 3
// writes the amount without a sign position, converted from pesetas when the
// currency is "P", and everything after it one position earlier. Arguments,
// results and errors as in Export2014; a text that is not a number in the
// rental's importe raises 13 here.

#ifndef ZERBAL_FILEFORMAT_EXPORT2011_H_
#define ZERBAL_FILEFORMAT_EXPORT2011_H_

#include <cstdint>
#include <string>

#include "zerbal/variant.h"

namespace zerbal::Export2011 {

std::string GenerarReg0(const Variant& vBufferPresentador, int32_t lngNoTotalDtes,
                        int32_t lngNoTotalDos, int32_t lngEjercicio);
std::string GenerarReg1(const Variant& vBufferDeclarante, const Variant& TablaTotales,
                        const std::string& strMoneda, int32_t lngEjercicio);
Variant GenerarReg3(int32_t lngEjercicio, const Variant& vBufferArrendamiento,
                    const Variant& vBufferDeclarante, const std::string& strMoneda);

}  // namespace zerbal::Export2011

#endif  // ZERBAL_FILEFORMAT_EXPORT2011_H_
