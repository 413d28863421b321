// A field of a table as the original engine describes it (type, size,
// default, required and zero-length flags, ordinal position), and the one
// way such a field is written as a column of ours.
//
// A column is written in the conventions of resources/data_schema.sql, so
// that a column added to a table is indistinguishable from one a new
// database has:
//
//   name INTEGER PRIMARY KEY AUTOINCREMENT                      (Counter)
//   name INTEGER [NOT NULL] [DEFAULT d] CONSTRAINT range_name
//        CHECK (name BETWEEN lo AND hi)                          (Byte, Integer, Long)
//   name REAL [NOT NULL] [DEFAULT d]                             (Double)
//   name TEXT [NOT NULL] [DEFAULT d] COLLATE NOCASE
//        [CONSTRAINT size_name CHECK (length(name) <= n)]
//        [CONSTRAINT zero_name CHECK (name <> '')]               (Text)
//
// The database layer reports the named checks as 3163 (size), 3349 (range)
// and 3315 (a zero-length text where none is allowed).

#ifndef ZERBAL_DATA_FIELD_DEF_H_
#define ZERBAL_DATA_FIELD_DEF_H_

#include <string>
#include <string_view>

namespace zerbal::data {

// Field types, numbered as the original engine numbers them.
inline constexpr int kFieldByte = 2;
inline constexpr int kFieldInteger = 3;  // 16 bits
inline constexpr int kFieldLong = 4;     // 32 bits (a Counter too)
inline constexpr int kFieldDouble = 7;
inline constexpr int kFieldText = 10;

// The longest text field there is.
inline constexpr int kMaxTextSize = 255;

// Intentionally copyable: a field definition is a value.
struct FieldDef {
  std::string name;
  int type = kFieldText;
  int size = 0;  // characters of a text field (0: unlimited); 0 for the others
  // The default as an engine literal: a number ("0") or a text between
  // apostrophes ("''"); empty for none.
  std::string default_value;
  bool required = false;           // NOT NULL
  bool allow_zero_length = false;  // text fields only; the original engine's default
  bool counter = false;            // the table's key, numbered by the engine
  // The place of the field among the table's fields; several may share one,
  // and they need not be consecutive. -1: not set (the end of the table).
  int ordinal_position = -1;
};

// A new field, not yet part of any table: not required, no default, zero
// length not allowed, no position. Raises 3125 for a name that is not a
// plain identifier, 3219 for a type or size the engine has no column for.
FieldDef CreateField(std::string name, int type, int size = 0);

// Raises as CreateField does for anything in `field` that cannot become a
// column (a default that is not a literal included).
void CheckField(const FieldDef& field);

// The column definition of `field` in the conventions above.
std::string ColumnSql(const FieldDef& field);

// A definition in lower case without blanks, as definitions are compared.
std::string Squeezed(std::string_view definition);

// Whether two column definitions are the same but for blanks and case.
bool SameDefinition(std::string_view a, std::string_view b);

// Whether `name` is a plain identifier: a letter or "_", then letters,
// digits or "_", at most 64 characters.
bool IsPlainName(std::string_view name);

// The range of a whole-number field type; false for other types.
bool IntegerRange(int type, long long* low, long long* high);

}  // namespace zerbal::data

#endif  // ZERBAL_DATA_FIELD_DEF_H_
