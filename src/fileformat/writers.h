// What the year modules share: each record family works out its computed
// values the same way in every year and differs only in its layout. The
// buffers are those that the record classes fill (declarant and presenter
// buffers 0 to 17, the operation and rental buffers of CargarArray).

#ifndef ZERBAL_FILEFORMAT_WRITERS_H_
#define ZERBAL_FILEFORMAT_WRITERS_H_

#include <cstdint>
#include <string>

#include "fileformat/layout.h"
#include "zerbal/variant.h"

namespace zerbal::fileformat {

// Record 0. The postal code is element 10 followed by element 11 filled with
// zeros on the left to three digits: the presenter buffer carries the last
// three digits of a stored number, so 20001 arrives as "1".
std::string WritePresenterRecord(const Layout& layout, const Variant& vBufferPresentador,
                                 int32_t lngNoTotalDtes, int32_t lngNoTotalDos,
                                 int32_t lngEjercicio);

// Record 1, with the key totals of TablaTotales (Null: no operations; rows
// 1 to the last; column 0 key, 1 sum, 2 count). Keys are compared
// upper-cased; keys other than "A" to "E" are skipped; a later row of a key
// replaces an earlier one.
std::string WriteDeclarantRecord(const Layout& layout, const Variant& vBufferDeclarante,
                                 const Variant& TablaTotales, const std::string& strMoneda,
                                 int32_t lngEjercicio);

// Records 2 and 3: one operation or rental of the declarant.
std::string WriteItemRecord(const Layout& layout, int32_t lngEjercicio, const Variant& vBufferItem,
                            const Variant& vBufferDeclarante, const std::string& strMoneda);

}  // namespace zerbal::fileformat

#endif  // ZERBAL_FILEFORMAT_WRITERS_H_
