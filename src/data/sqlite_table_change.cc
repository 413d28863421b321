// The table changes of data/table_defs.h on a SQLite file: the engine can
// put a new column only at the end, and can drop or rename none with its
// named checks, so a change builds the table again inside a savepoint.

#include <algorithm>

#include "base/convert.h"
#include "base/raise.h"
#include "data/engine.h"
#include "data/table_schema.h"

namespace zerbal::data {
namespace {

// The name the table has while it is built again.
constexpr std::string_view kOldTable = "zerbal_old_table";

bool SameName(std::string_view a, std::string_view b) { return UCase(a) == UCase(b); }

std::string Identifier(std::string_view name) {
  if (IsPlainName(name)) return std::string(name);
  std::string quoted = "\"";
  for (char c : name) quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
  return quoted + "\"";
}

std::string Literal(std::string_view text) {
  std::string quoted = "'";
  for (char c : text) quoted += c == '\'' ? std::string("''") : std::string(1, c);
  return quoted + "'";
}

// A column of the table as it will be: its field, and the column of the
// table as it is that fills it (empty: a new field, filled with its default).
struct Target {
  FieldDef field;
  std::string source;
  std::string definition;  // kept as written when not in our conventions
};

// Runs `change` inside a savepoint, so that it is done whole or not at all;
// the connection's statements are then prepared afresh for the tables.
template <typename F>
void Atomically(EngineConnection& conn, F&& change) {
  sqlite3* db = conn.db();
  ExecScript(db, "SAVEPOINT zerbal_table_change");
  try {
    change(db);
    ExecScript(db, "RELEASE zerbal_table_change");
  } catch (...) {
    sqlite3_exec(db, "ROLLBACK TO zerbal_table_change; RELEASE zerbal_table_change", nullptr,
                 nullptr, nullptr);
    conn.NoteOwnWrite();
    try {
      conn.TablesChanged();
    } catch (...) {
      // The statements are forgotten all the same; the change's error counts.
    }
    throw;
  }
  conn.NoteOwnWrite();
  conn.TablesChanged();
}

// Renames the table without touching what refers to it by name: those
// references are for the table built in its place.
void SetAside(sqlite3* db, const std::string& table) {
  ExecScript(db, "PRAGMA legacy_alter_table = ON");
  try {
    ExecScript(db, "ALTER TABLE " + Identifier(table) + " RENAME TO " + std::string(kOldTable));
  } catch (...) {
    sqlite3_exec(db, "PRAGMA legacy_alter_table = OFF", nullptr, nullptr, nullptr);
    throw;
  }
  ExecScript(db, "PRAGMA legacy_alter_table = OFF");
}

// Builds `old` again with the columns `targets`: the rows (keys included),
// the counter's next value, the indexes and the triggers stay.
void Rebuild(sqlite3* db, const TableSchema& old, const std::vector<Target>& targets) {
  if (!old.rebuildable) {
    Raise(errc::kInvalidOperation, old.name + ": constraints of the whole table", kEngineSource);
  }
  const bool counted =
      !QueryText(db, "SELECT 1 FROM sqlite_schema WHERE name = 'sqlite_sequence'").empty();
  const auto sequence =
      counted ? QueryText(db, "SELECT seq FROM sqlite_sequence WHERE name = ?1", old.name)
              : std::vector<std::vector<std::string>>{};

  std::string create = "CREATE TABLE " + Identifier(old.name) + " (";
  std::string into, from;
  for (const Target& t : targets) {
    create += (&t == &targets.front() ? "\n  " : ",\n  ") +
              (t.definition.empty() ? ColumnSql(t.field) : t.definition);
    if (t.source.empty()) continue;
    into += (into.empty() ? "" : ", ") + Identifier(t.field.name);
    from += (from.empty() ? "" : ", ") + Identifier(t.source);
  }
  create += old.strict ? "\n) STRICT" : "\n)";

  SetAside(db, old.name);
  ExecScript(db, create);
  ExecScript(db, "INSERT INTO " + Identifier(old.name) + " (" + into + ") SELECT " + from +
                     " FROM " + std::string(kOldTable));
  ExecScript(db, "DROP TABLE " + std::string(kOldTable));
  for (const std::string& sql : old.dependents) ExecScript(db, sql);
  if (counted) {
    ExecScript(db, "DELETE FROM sqlite_sequence WHERE name = " + Literal(old.name));
    if (!sequence.empty()) {
      ExecScript(db, "INSERT INTO sqlite_sequence (name, seq) VALUES (" + Literal(old.name) +
                         ", " + std::to_string(std::stoll(sequence[0][0])) + ")");
    }
  }
}

const Column* FindColumn(const TableSchema& schema, std::string_view name) {
  for (const Column& c : schema.columns) {
    if (SameName(c.field.name, name)) return &c;
  }
  return nullptr;
}

// The table's columns as `fields` orders them, each filled from its own
// column (a field the table does not have yet is new).
std::vector<Target> Targets(const TableSchema& schema, const std::vector<FieldDef>& fields) {
  std::vector<Target> targets;
  for (const FieldDef& f : fields) {
    Target& t = targets.emplace_back();
    t.field = f;
    if (const Column* c = FindColumn(schema, f.name)) {
      t.source = c->field.name;
      if (!c->understood) t.definition = c->definition;
    }
  }
  return targets;
}

}  // namespace

void EngineConnection::ChangeTable(const TableChange& change) {
  const std::string& name = change.name;
  const std::vector<FieldDef>& fields = change.fields;
  switch (change.kind) {
    case TableChange::Kind::kAppend:
      Atomically(*this, [&](sqlite3* db) {
        const TableSchema schema = ReadTableSchema(db, change.table);
        if (change.last) {
          const FieldDef& field = *std::find_if(fields.begin(), fields.end(),
                                                [&](const FieldDef& f) { return f.name == name; });
          ExecScript(db, "ALTER TABLE " + Identifier(schema.name) + " ADD COLUMN " + ColumnSql(field));
        } else {
          Rebuild(db, schema, Targets(schema, fields));
        }
      });
      break;
    case TableChange::Kind::kDelete:
      Atomically(*this, [&](sqlite3* db) {
        const TableSchema schema = ReadTableSchema(db, change.table);
        const Column* column = FindColumn(schema, name);
        if (column == nullptr) Raise(errc::kItemNotFound, name, kEngineSource);
        if (column->indexed) Raise(errc::kFieldInIndex, column->field.name, kEngineSource);
        if (fields.empty()) Raise(errc::kInvalidOperation, "a table without fields", kEngineSource);
        Rebuild(db, schema, Targets(schema, fields));
      });
      break;
    case TableChange::Kind::kRename:
      Atomically(*this, [&](sqlite3* db) {
        const TableSchema schema = ReadTableSchema(db, change.table);
        const Column* column = FindColumn(schema, name);
        if (column == nullptr) Raise(errc::kItemNotFound, name, kEngineSource);
        if (!column->understood) {
          Raise(errc::kInvalidOperation, column->field.name + ": written in other conventions",
                kEngineSource);
        }
        // The engine renames it in the indexes and triggers too; the table is
        // then built again so that its checks carry the new name as well.
        ExecScript(db, "ALTER TABLE " + Identifier(schema.name) + " RENAME COLUMN " +
                           Identifier(column->field.name) + " TO " + change.new_name);
        const TableSchema renamed = ReadTableSchema(db, change.table);
        std::vector<Target> targets = Targets(renamed, fields);
        for (Target& t : targets) {
          if (SameName(t.field.name, change.new_name)) t.definition.clear();
        }
        Rebuild(db, renamed, targets);
      });
      break;
  }
}

}  // namespace zerbal::data
