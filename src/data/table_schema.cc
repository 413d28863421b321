#include "data/table_schema.h"

#include <cctype>
#include <cstdlib>
#include <set>

#include "base/convert.h"
#include "base/raise.h"
#include "data/sqlite.h"

namespace zerbal::data {
namespace {

using Row = std::vector<std::string>;

std::string TrimSpace(std::string_view text) {
  const auto blank = [](char c) { return std::isspace(static_cast<unsigned char>(c)) != 0; };
  while (!text.empty() && blank(text.front())) text.remove_prefix(1);
  while (!text.empty() && blank(text.back())) text.remove_suffix(1);
  return std::string(text);
}

// Whether ColumnSql writes `column` as its definition stands.
bool WrittenAlike(const Column& column) {
  if (column.definition.empty() || !IsPlainName(column.field.name)) return false;
  try {
    return SameDefinition(ColumnSql(column.field), column.definition);
  } catch (const Error&) {
    return false;
  }
}

// The whole number written in `text` right after `prefix`, with what
// follows it in `*rest`.
bool NumberAfter(std::string_view text, std::string_view prefix, long long* value,
                 std::string_view* rest) {
  const size_t at = text.find(prefix);
  if (at == std::string_view::npos) return false;
  const std::string digits(text.substr(at + prefix.size(), 24));
  char* end = nullptr;
  *value = std::strtoll(digits.c_str(), &end, 10);
  if (end == digits.c_str()) return false;
  *rest = text.substr(at + prefix.size() + static_cast<size_t>(end - digits.c_str()));
  return true;
}

// The field that a column of our conventions stands for, from what the
// engine says of it and from its named checks.
FieldDef FieldOf(const Row& info, std::string_view definition, bool autoincrement) {
  // info: name, type, notnull, dflt_value, pk
  FieldDef f;
  f.name = info[0];
  f.required = info[2] == "1";
  f.default_value = info[3];
  const std::string type = UCase(info[1]);
  const std::string def = Squeezed(definition);
  const std::string n = LCase(f.name);
  std::string_view rest;
  if (type == "INTEGER") {
    f.type = kFieldLong;
    f.counter = info[4] == "1" && autoincrement;
    long long low = 0, high = 0;
    if (NumberAfter(def, "constraintrange_" + n + "check(" + n + "between", &low, &rest) &&
        NumberAfter(rest, "and", &high, &rest)) {
      for (int t : {kFieldByte, kFieldInteger, kFieldLong}) {
        long long tl, th;
        IntegerRange(t, &tl, &th);
        if (tl == low && th == high) f.type = t;
      }
    }
  } else if (type == "REAL") {
    f.type = kFieldDouble;
  } else {
    f.type = kFieldText;
    long long size = 0;
    if (NumberAfter(def, "constraintsize_" + n + "check(length(" + n + ")<=", &size, &rest) &&
        size > 0 && size <= kMaxTextSize) {
      f.size = static_cast<int>(size);
    }
    f.allow_zero_length = def.find("constraintzero_" + n + "check(") == std::string::npos;
  }
  return f;
}

}  // namespace

std::vector<Row> QueryText(sqlite3* db, const char* sql, std::string_view arg) {
  Statement stmt = PrepareOne(db, sql);
  if (sqlite3_bind_parameter_count(stmt.get()) > 0) {
    Check(sqlite3_bind_text(stmt.get(), 1, arg.data(), static_cast<int>(arg.size()),
                            SQLITE_TRANSIENT),
          db);
  }
  std::vector<Row> rows;
  int rc;
  while ((rc = sqlite3_step(stmt.get())) == SQLITE_ROW) {
    Row& row = rows.emplace_back();
    for (int c = 0; c < sqlite3_column_count(stmt.get()); ++c) {
      const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(stmt.get(), c));
      row.emplace_back(text ? text : "");
    }
  }
  if (rc != SQLITE_DONE) RaiseEngineError(rc, db);
  return rows;
}

std::vector<std::string> SplitColumnDefinitions(std::string_view sql, std::string* tail) {
  std::vector<std::string> parts;
  const size_t open = sql.find('(');
  if (open == std::string_view::npos) return parts;
  int depth = 0;
  char quote = 0;
  size_t start = open + 1;
  for (size_t i = open + 1; i < sql.size(); ++i) {
    const char c = sql[i];
    if (quote != 0) {
      if (c == quote) quote = 0;
    } else if (c == '\'' || c == '"' || c == '`') {
      quote = c;
    } else if (c == '[') {
      quote = ']';
    } else if (c == '(') {
      ++depth;
    } else if (c == ')' && depth > 0) {
      --depth;
    } else if (c == ',' || c == ')') {
      parts.push_back(TrimSpace(sql.substr(start, i - start)));
      start = i + 1;
      if (c == ')') {
        if (tail != nullptr) *tail = std::string(sql.substr(i + 1));
        break;
      }
    }
  }
  return parts;
}

std::vector<std::string> TableNames(sqlite3* db) {
  std::vector<std::string> names;
  for (const Row& row : QueryText(db,
                              "SELECT name FROM sqlite_schema WHERE type = 'table' AND "
                              "name NOT LIKE 'sqlite!_%' ESCAPE '!' ORDER BY rowid",
                              {})) {
    names.push_back(row[0]);
  }
  return names;
}

TableSchema ReadTableSchema(sqlite3* db, std::string_view name) {
  const std::vector<Row> table = QueryText(
      db, "SELECT name, sql FROM sqlite_schema WHERE type = 'table' AND upper(name) = upper(?1)",
      name);
  if (table.empty()) Raise(errc::kItemNotFound, name, kEngineSource);
  TableSchema schema;
  schema.name = table[0][0];
  const std::string& create = table[0][1];
  const std::vector<Row> strict =
      QueryText(db, "SELECT strict FROM pragma_table_list WHERE name = ?1", schema.name);
  schema.strict = !strict.empty() && strict[0][0] == "1";

  std::set<std::string> indexed;
  for (const Row& row : QueryText(db,
                              "SELECT lower(ii.name) FROM pragma_index_list(?1) AS il, "
                              "pragma_index_info(il.name) AS ii",
                              schema.name)) {
    indexed.insert(row[0]);
  }
  for (const Row& row : QueryText(db,
                              "SELECT sql FROM sqlite_schema WHERE tbl_name = ?1 AND type IN "
                              "('index', 'trigger') AND sql IS NOT NULL ORDER BY rowid",
                              schema.name)) {
    schema.dependents.push_back(row[0]);
  }

  const std::vector<std::string> definitions = SplitColumnDefinitions(create, nullptr);
  const std::vector<Row> info = QueryText(
      db, "SELECT name, type, \"notnull\", ifnull(dflt_value, ''), pk FROM pragma_table_info(?1)",
      schema.name);
  schema.rebuildable = definitions.size() == info.size();
  const bool autoincrement = UCase(create).find("AUTOINCREMENT") != std::string::npos;
  for (size_t i = 0; i < info.size(); ++i) {
    Column column;
    column.definition = schema.rebuildable ? definitions[i] : std::string();
    column.field = FieldOf(info[i], column.definition, autoincrement);
    column.field.ordinal_position = static_cast<int>(i);
    column.understood = WrittenAlike(column);
    column.indexed = info[i][4] != "0" || indexed.count(LCase(column.field.name)) > 0;
    schema.columns.push_back(std::move(column));
  }
  return schema;
}

}  // namespace zerbal::data
