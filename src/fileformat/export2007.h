// Export2007: the record writers for fiscal years 2007 and before, 180
// characters a record; its record 0 also serves 2008 to 2010. As Export2008,
// except that record 2 converts the keys F and G (ConvertirClave) and writes
// the numeric country code through BC in three digits, and record 3 has
// "000" at 86-88. A key other than "A" to "G" is written as nothing and
// shortens the record by one character.

#ifndef ZERBAL_FILEFORMAT_EXPORT2007_H_
#define ZERBAL_FILEFORMAT_EXPORT2007_H_

#include <cstdint>
#include <string>

#include "zerbal/variant.h"

namespace zerbal::Export2007 {

std::string GenerarReg0(const Variant& vBufferPresentador, int32_t lngNoTotalDtes,
                        int32_t lngNoTotalDos, int32_t lngEjercicio);
std::string GenerarReg1(const Variant& vBufferDeclarante, const Variant& TablaTotales,
                        const std::string& strMoneda, int32_t lngEjercicio);
std::string GenerarReg2(int32_t lngEjercicio, const Variant& vBufferDeclarado,
                        const Variant& vBufferDeclarante, const std::string& strMoneda);
Variant GenerarReg3(int32_t lngEjercicio, const Variant& vBufferArrendamiento,
                    const Variant& vBufferDeclarante, const std::string& strMoneda);

}  // namespace zerbal::Export2007

#endif  // ZERBAL_FILEFORMAT_EXPORT2007_H_
