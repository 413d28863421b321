// Export2014: the record writers of the current layout, 500 characters a
// record, for fiscal years from 2014 on; its record 2 also serves 2011 to
// 2013. A year module is a namespace of stateless functions: each writer
// returns one record without a line end and opens nothing. The currency
// argument is not used by these writers.
//
// Errors of the conversions pass to the caller unchanged: 13 for a text that
// is not a number in a number field (presenter street number, postal code,
// telephone prefix, declarant province, provo, impmet, numeroa, a total's
// count or sum), 94 for a Null where text is needed. Amounts read through BC
// never fail: anything but digits and "-" is written as zero.

#ifndef ZERBAL_FILEFORMAT_EXPORT2014_H_
#define ZERBAL_FILEFORMAT_EXPORT2014_H_

#include <cstdint>
#include <string>

#include "zerbal/variant.h"

namespace zerbal::Export2014 {

std::string GenerarReg0(const Variant& vBufferPresentador, int32_t lngNoTotalDtes,
                        int32_t lngNoTotalDos, int32_t lngEjercicio);
std::string GenerarReg1(const Variant& vBufferDeclarante, const Variant& TablaTotales,
                        const std::string& strMoneda, int32_t lngEjercicio);
std::string GenerarReg2(int32_t lngEjercicio, const Variant& vBufferDeclarado,
                        const Variant& vBufferDeclarante, const std::string& strMoneda);
// The record comes back as a Variant holding the string.
Variant GenerarReg3(int32_t lngEjercicio, const Variant& vBufferArrendamiento,
                    const Variant& vBufferDeclarante, const std::string& strMoneda);

}  // namespace zerbal::Export2014

#endif  // ZERBAL_FILEFORMAT_EXPORT2014_H_
