// The table definitions of a database, as the original engine offers them:
// the fields of a table with their types, sizes, defaults, flags and ordinal
// positions, and the changes: append a field at a position, delete one,
// rename one, read them again.
//
// The engine can put a new column only at the end, and can drop or rename
// none with its named checks; so every change builds the table again with
// its new columns, keeping its rows, keys, counter, indexes and triggers.
// A change is done whole or not at all, on its own or as part of an open
// Transaction (data/transaction.h), and is seen by every other connection
// on its next open.
//
// Ordinal positions are the table's order when a definition is read and
// the positions given to the fields appended through it. As in the original
// engine they need not be consecutive and several fields may share one: a
// field appended with position p goes after every field whose position is p
// or less (so fields given one position stand in the order they were
// appended); one without a position goes last.

#ifndef ZERBAL_DATA_TABLE_DEFS_H_
#define ZERBAL_DATA_TABLE_DEFS_H_

#include <string>
#include <string_view>
#include <vector>

#include "data/database.h"
#include "data/field_def.h"

namespace zerbal::data {

// One table's definition. Intentionally copyable; the database it was read
// from must stay open while it is used (after a close: 3420).
class TableDef {
 public:
  const std::string& Name() const { return name_; }

  // In the table's order.
  const std::vector<FieldDef>& Fields() const { return fields_; }

  // The field named `name`, ignoring case; 3265 when there is none.
  const FieldDef& Field(std::string_view name) const;

  // Adds `field` to the table at its ordinal position (see above), filled
  // with its default in every row. 3191 when a field of that name exists;
  // 3125 or 3219 for a definition that cannot be a column (see CheckField);
  // 3314 when it is required, has no default and the table has rows.
  void Append(FieldDef field);

  // Removes the field and its values. 3265 when there is none; 3280 for the
  // key or a field that an index uses.
  void Delete(std::string_view name);

  // Gives the field `name` the name `new_name`, keeping its values, place
  // and definition. 3265, 3191 and 3125 as above.
  void Rename(std::string_view name, const std::string& new_name);

  // Reads the fields again from the engine, keeping the positions this
  // definition gave while the table's order agrees with them.
  void Refresh();

 private:
  friend class TableDefs;
  TableDef(const Database& db, std::string name) : db_(&db), name_(std::move(name)) {}

  const Database* db_;
  std::string name_;
  std::vector<FieldDef> fields_;
};

class TableDefs {
 public:
  explicit TableDefs(const Database& db) : db_(db) {}

  // The definition of the table `name`, ignoring case; 3265 when there is
  // none.
  TableDef Item(std::string_view name) const;

  // The names of the tables, the engine's own aside.
  std::vector<std::string> Names() const;

 private:
  const Database& db_;
};

}  // namespace zerbal::data

#endif  // ZERBAL_DATA_TABLE_DEFS_H_
