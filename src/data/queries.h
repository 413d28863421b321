// The two ways a gateway reads a query: the whole result as a buffer, or the
// first value of the first row. Both close their recordset.

#ifndef ZERBAL_DATA_QUERIES_H_
#define ZERBAL_DATA_QUERIES_H_

#include <cstdint>
#include <string>

#include "zerbal/variant.h"

namespace zerbal {

// The rows of `sql` on the selected database, copied by CargarArray in `mode`
// (Null for no rows).
Variant QueryBuffer(const std::string& sql, int16_t mode);

// The first column of the first row of `sql`; `none` when there is no row.
Variant QueryFirst(const std::string& sql, Variant none = Variant());

// QueryFirst as a 32-bit number, with 0 for no row and for Null (MAX of an
// empty table).
int32_t QueryNumber(const std::string& sql);

}  // namespace zerbal

#endif  // ZERBAL_DATA_QUERIES_H_
