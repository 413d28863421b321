// Export2008: the writers of records 1, 2 and 3 for fiscal years 2008 to
// 2010, 180 characters a record (record 0 of those years is Export2007's).
// Amounts have no sign position; the sums of record 1, importe of records 2
// and 3 are converted from pesetas when the currency is "P" (impmet and
// impinm never are). Country codes are the two-letter ones. Arguments and
// results as in Export2014; every amount here is converted to a number, so
// a text that is not a number raises 13, and a negative amount is written
// with a leading "-" that makes the record longer.

#ifndef ZERBAL_FILEFORMAT_EXPORT2008_H_
#define ZERBAL_FILEFORMAT_EXPORT2008_H_

#include <cstdint>
#include <string>

#include "fileformat/export2007.h"
#include "zerbal/variant.h"

namespace zerbal::Export2008 {

// Record 1 did not change from 2007 to 2010.
using Export2007::GenerarReg1;

std::string GenerarReg2(int32_t lngEjercicio, const Variant& vBufferDeclarado,
                        const Variant& vBufferDeclarante, const std::string& strMoneda);
Variant GenerarReg3(int32_t lngEjercicio, const Variant& vBufferArrendamiento,
                    const Variant& vBufferDeclarante, const std::string& strMoneda);

}  // namespace zerbal::Export2008

#endif  // ZERBAL_FILEFORMAT_EXPORT2008_H_
