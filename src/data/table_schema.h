// What the engine holds of one table, read back into field definitions:
// the part of the table definitions that only reads.

#ifndef ZERBAL_DATA_TABLE_SCHEMA_H_
#define ZERBAL_DATA_TABLE_SCHEMA_H_

#include <sqlite3.h>

#include <string>
#include <string_view>
#include <vector>

#include "data/field_def.h"

namespace zerbal::data {

struct Column {
  FieldDef field;          // its ordinal position is its place in the table
  std::string definition;  // as the table's SQL writes it
  // Whether ColumnSql(field) writes the same definition; a column written in
  // other conventions is kept by its own text and cannot be renamed.
  bool understood = false;
  bool indexed = false;  // the key, or used by an index
};

struct TableSchema {
  std::string name;  // as the engine has it
  bool strict = false;
  std::vector<Column> columns;
  // The SQL of the indexes and triggers on the table, which go with it.
  std::vector<std::string> dependents;
  // Whether the table's SQL holds only column definitions (no constraint of
  // the whole table), so that it can be built again from them.
  bool rebuildable = false;
};

// Every row of `sql`, each column as text (Null as ""), with `arg` bound to
// its parameter ?1 when it has one.
std::vector<std::vector<std::string>> QueryText(sqlite3* db, const char* sql,
                                                std::string_view arg = {});

// The table named `name` (ignoring case); 3265 when there is none.
TableSchema ReadTableSchema(sqlite3* db, std::string_view name);

// The names of the tables, the engine's own aside, in the engine's order.
std::vector<std::string> TableNames(sqlite3* db);

// The column definitions of a CREATE TABLE statement, split at the commas
// that are not inside brackets or quotes; what follows the closing bracket
// goes to `*tail`.
std::vector<std::string> SplitColumnDefinitions(std::string_view create_sql, std::string* tail);

}  // namespace zerbal::data

#endif  // ZERBAL_DATA_TABLE_SCHEMA_H_
