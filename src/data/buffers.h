// Buffers from recordsets, and the protection of apostrophes in SQL text:
// the part of the module General that every table gateway uses.

#ifndef ZERBAL_DATA_BUFFERS_H_
#define ZERBAL_DATA_BUFFERS_H_

#include <cstdint>
#include <string>
#include <string_view>

#include "zerbal/recordset.h"
#include "zerbal/variant.h"

namespace zerbal::General {

// Copies the rows of `recordset` into a buffer of strings (every value
// through RestaurarComilla). No rows give Null. Mode 0: one record, elements
// 0 to n (n columns; element n stays empty); a second row runs past the end
// and raises 9. Mode 1: the first column, elements 0 to r-1 (r rows). Any
// other mode: a table (0 to n, 0 to r), element (c, k) column c of row k
// for k = 1 to r; row 0 and column n stay empty. Positions are 16-bit, so
// more than 32,767 rows (or elements in mode 0) raise 6. The recordset is
// left open, past its last row.
Variant CargarArray(Recordset& recordset, int16_t& mode);

// The text with every apostrophe "'" replaced by the acute accent "´", so it
// can stand between apostrophes in SQL.
std::string SustituirComilla(std::string_view text);

// A field value as text: the empty string for Null, otherwise the value's
// text with every "´" turned back into "'".
std::string RestaurarComilla(const Variant& value);

}  // namespace zerbal::General

#endif  // ZERBAL_DATA_BUFFERS_H_
