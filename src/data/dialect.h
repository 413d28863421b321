// Translation of the SQL that the system builds into SQL that the engine
// runs with the same meaning.
//
//  - "SELECT [DISTINCT] TOP n ..." selects the first n rows (LIMIT n).
//  - "INSERT INTO t SELECT a, b FROM ..." without a column list fills the
//    columns named like the selected ones.
//  - "col LIKE 'prefix*'" on an indexed text column also gets a range on
//    the column, so the index serves the search; the LIKE itself (the
//    original engine's wildcards, installed on the connection) still decides.
//
// Everything else passes through unchanged; text between apostrophes is
// never touched.

#ifndef ZERBAL_DATA_DIALECT_H_
#define ZERBAL_DATA_DIALECT_H_

#include <set>
#include <string>
#include <string_view>

namespace zerbal::data {

// Lower-case names of the text columns that an index starts with.
using IndexedTextColumns = std::set<std::string, std::less<>>;

// Raises 3075 for an INSERT ... SELECT whose selected columns have no name.
std::string TranslateSql(std::string_view sql, const IndexedTextColumns& indexed);

}  // namespace zerbal::data

#endif  // ZERBAL_DATA_DIALECT_H_
