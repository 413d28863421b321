// The table definitions on a PostgreSQL server (see pg_schema.h).

#include <algorithm>
#include <cstdlib>

#include "base/convert.h"
#include "base/raise.h"
#include "data/pg.h"
#include "data/pg_engine.h"
#include "data/pg_schema.h"

namespace zerbal::data {
namespace {

constexpr std::string_view kOldTable = "zerbal_old_table";

bool SameName(std::string_view a, std::string_view b) { return UCase(a) == UCase(b); }

// The engine literal of a default as the server writes it back: 0,
// ''::text, '12'::integer.
std::string DefaultLiteral(std::string expression, int type) {
  if (expression.empty() || expression.front() != '\'') return expression;
  const size_t cast = expression.rfind("::");
  if (cast != std::string::npos && cast > expression.rfind('\'')) expression.resize(cast);
  if (type == kFieldText || expression.size() < 2) return expression;
  return expression.substr(1, expression.size() - 2);
}

// The table's name as the server has it; 3265 when there is none.
std::string TableName(PGconn* conn, std::string_view name) {
  const std::string wanted(name);
  PgResult r = PgExec(conn,
                      "SELECT c.relname FROM pg_class c JOIN pg_namespace n ON n.oid = c.relnamespace "
                      "WHERE n.nspname = current_schema() AND c.relkind = 'r' "
                      "AND lower(c.relname) = lower($1)",
                      {wanted.c_str()});
  if (PQntuples(r.get()) == 0) Raise(errc::kItemNotFound, name, kEngineSource);
  return PQgetvalue(r.get(), 0, 0);
}

template <typename F>
void Atomically(PGconn* conn, F&& change) {
  const bool nested = PQtransactionStatus(conn) != PQTRANS_IDLE;
  PgExecScript(conn, nested ? "SAVEPOINT zerbal_table_change" : "BEGIN");
  try {
    change();
    PgExecScript(conn, nested ? "RELEASE SAVEPOINT zerbal_table_change" : "COMMIT");
  } catch (...) {
    PgResult ignored(PQexec(conn, nested ? "ROLLBACK TO SAVEPOINT zerbal_table_change; "
                                           "RELEASE SAVEPOINT zerbal_table_change"
                                         : "ROLLBACK"));
    throw;
  }
}

std::string CreateSql(const std::string& table, const std::vector<FieldDef>& fields) {
  std::string sql = "CREATE TABLE " + table + " (";
  for (const FieldDef& f : fields) sql += (&f == &fields.front() ? "\n  " : ",\n  ") + PgColumnSql(f);
  return sql + "\n)";
}

// Builds the table again with `fields`, each filled from its column of the
// same name: rows, keys, the counter's next value and the indexes stay.
void Rebuild(PGconn* conn, const TableSchema& old, const std::vector<FieldDef>& fields) {
  const std::string& table = old.name;
  PgResult indexes = PgExec(conn,
                            "SELECT pg_get_indexdef(indexrelid) FROM pg_index "
                            "WHERE indrelid = $1::regclass AND NOT indisprimary",
                            {table.c_str()});
  std::string counter, into;
  for (const FieldDef& f : fields) {
    if (f.counter) counter = f.name;
    for (const Column& c : old.columns) {
      if (SameName(c.field.name, f.name)) into += (into.empty() ? "" : ", ") + f.name;
    }
  }
  std::string next;
  if (!counter.empty()) {
    PgResult seq = PgExec(conn, "SELECT pg_get_serial_sequence($1, $2)", {table.c_str(), counter.c_str()});
    PgResult value = PgExec(conn, "SELECT last_value, is_called FROM " + std::string(PQgetvalue(seq.get(), 0, 0)));
    next = std::string(PQgetvalue(value.get(), 0, 0)) + ", " +
           (PQgetvalue(value.get(), 0, 1)[0] == 't' ? "true" : "false");
  }
  PgExecScript(conn, "ALTER TABLE " + table + " RENAME TO " + std::string(kOldTable));
  // Its key and counter keep their names for the table built in its place.
  PgResult key = PgExec(conn, "SELECT conname FROM pg_constraint WHERE contype = 'p' AND conrelid = $1::regclass",
                        {kOldTable.data()});
  if (PQntuples(key.get()) > 0) {
    PgExecScript(conn, "ALTER TABLE " + std::string(kOldTable) + " RENAME CONSTRAINT " +
                           PQgetvalue(key.get(), 0, 0) + " TO " + std::string(kOldTable) + "_pkey");
  }
  if (!counter.empty()) {
    PgResult seq = PgExec(conn, "SELECT pg_get_serial_sequence($1, $2)", {kOldTable.data(), counter.c_str()});
    PgExecScript(conn, "ALTER SEQUENCE " + std::string(PQgetvalue(seq.get(), 0, 0)) + " RENAME TO " +
                           std::string(kOldTable) + "_seq");
  }
  PgExecScript(conn, CreateSql(table, fields));
  PgExecScript(conn, "INSERT INTO " + table + " (" + into + ") SELECT " + into + " FROM " +
                         std::string(kOldTable));
  PgExecScript(conn, "DROP TABLE " + std::string(kOldTable));
  for (int i = 0; i < PQntuples(indexes.get()); ++i) PgExecScript(conn, PQgetvalue(indexes.get(), i, 0));
  if (!next.empty()) {
    PgExecScript(conn, "SELECT setval(pg_get_serial_sequence('" + table + "', '" + counter + "'), " +
                           next + ")");
  }
}

}  // namespace

std::string PgColumnSql(const FieldDef& field) {
  std::string sql = field.name;
  const std::string& n = field.name;
  if (field.counter) return sql + " integer GENERATED BY DEFAULT AS IDENTITY PRIMARY KEY";
  switch (field.type) {
    case kFieldByte:
    case kFieldInteger: sql += " smallint"; break;
    case kFieldLong: sql += " integer"; break;
    case kFieldDouble: sql += " double precision"; break;
    default: sql += " text COLLATE zerbal_nocase"; break;
  }
  if (!field.default_value.empty()) sql += " DEFAULT " + field.default_value;
  if (field.required) sql += " NOT NULL";
  if (field.type == kFieldByte) sql += " CONSTRAINT range_" + n + " CHECK (" + n + " BETWEEN 0 AND 255)";
  if (field.type == kFieldText && field.size > 0) {
    sql += " CONSTRAINT size_" + n + " CHECK (char_length(" + n + ") <= " + std::to_string(field.size) + ")";
  }
  if (field.type == kFieldText && !field.allow_zero_length) {
    sql += " CONSTRAINT zero_" + n + " CHECK (" + n + " <> '')";
  }
  return sql;
}

std::vector<std::string> PgTableNames(PGconn* conn) {
  PgResult r = PgExec(conn,
                      "SELECT c.relname FROM pg_class c JOIN pg_namespace n ON n.oid = c.relnamespace "
                      "WHERE n.nspname = current_schema() AND c.relkind = 'r' AND c.relname <> '" +
                          std::string(kOldTable) + "' ORDER BY c.oid");
  std::vector<std::string> names;
  for (int i = 0; i < PQntuples(r.get()); ++i) names.emplace_back(PQgetvalue(r.get(), i, 0));
  return names;
}

TableSchema PgReadTable(PGconn* conn, std::string_view name) {
  TableSchema schema;
  schema.name = TableName(conn, name);
  schema.rebuildable = true;
  const char* table = schema.name.c_str();
  PgResult columns = PgExec(
      conn,
      "SELECT a.attname, a.atttypid::regtype::text, a.attnotnull, "
      "coalesce(pg_get_expr(d.adbin, d.adrelid), ''), a.attidentity <> '', "
      "EXISTS (SELECT 1 FROM pg_index i WHERE i.indrelid = a.attrelid AND a.attnum = ANY(i.indkey)) "
      "FROM pg_attribute a LEFT JOIN pg_attrdef d ON d.adrelid = a.attrelid AND d.adnum = a.attnum "
      "WHERE a.attrelid = $1::regclass AND a.attnum > 0 AND NOT a.attisdropped ORDER BY a.attnum",
      {table});
  PgResult checks = PgExec(conn,
                           "SELECT conname, pg_get_constraintdef(oid) FROM pg_constraint "
                           "WHERE conrelid = $1::regclass AND contype = 'c'",
                           {table});
  auto check = [&](const std::string& constraint) -> std::string {
    for (int i = 0; i < PQntuples(checks.get()); ++i) {
      if (SameName(PQgetvalue(checks.get(), i, 0), constraint)) return PQgetvalue(checks.get(), i, 1);
    }
    return {};
  };
  for (int i = 0; i < PQntuples(columns.get()); ++i) {
    Column column;
    FieldDef& f = column.field;
    f.name = PQgetvalue(columns.get(), i, 0);
    const std::string type = PQgetvalue(columns.get(), i, 1);
    f.required = PQgetvalue(columns.get(), i, 2)[0] == 't';
    f.counter = PQgetvalue(columns.get(), i, 4)[0] == 't';
    if (type == "integer") {
      f.type = kFieldLong;
    } else if (type == "smallint") {
      f.type = check("range_" + f.name).empty() ? kFieldInteger : kFieldByte;
    } else if (type == "double precision") {
      f.type = kFieldDouble;
    } else {
      f.type = kFieldText;
      const std::string size = check("size_" + f.name);
      const size_t at = size.find("<=");
      if (at != std::string::npos) f.size = std::atoi(size.c_str() + at + 2);
      f.allow_zero_length = check("zero_" + f.name).empty();
    }
    f.default_value = DefaultLiteral(PQgetvalue(columns.get(), i, 3), f.type);
    if (f.counter) f.default_value.clear();
    f.ordinal_position = i;
    column.indexed = PQgetvalue(columns.get(), i, 5)[0] == 't';
    column.definition = PgColumnSql(f);
    column.understood = true;
    schema.columns.push_back(std::move(column));
  }
  return schema;
}

void PgChangeTable(PGconn* conn, const TableChange& change) {
  Atomically(conn, [&] {
    const TableSchema schema = PgReadTable(conn, change.table);
    const Column* column = nullptr;
    for (const Column& c : schema.columns) {
      if (SameName(c.field.name, change.name)) column = &c;
    }
    switch (change.kind) {
      case TableChange::Kind::kAppend: {
        if (!change.last) return Rebuild(conn, schema, change.fields);
        const auto field = std::find_if(change.fields.begin(), change.fields.end(),
                                        [&](const FieldDef& f) { return f.name == change.name; });
        PgExecScript(conn, "ALTER TABLE " + schema.name + " ADD COLUMN " + PgColumnSql(*field));
        return;
      }
      case TableChange::Kind::kDelete:
        if (column == nullptr) Raise(errc::kItemNotFound, change.name, kEngineSource);
        if (column->indexed) Raise(errc::kFieldInIndex, column->field.name, kEngineSource);
        if (change.fields.empty()) Raise(errc::kInvalidOperation, "a table without fields", kEngineSource);
        PgExecScript(conn, "ALTER TABLE " + schema.name + " DROP COLUMN " + column->field.name);
        return;
      case TableChange::Kind::kRename: {
        if (column == nullptr) Raise(errc::kItemNotFound, change.name, kEngineSource);
        const std::string& old_name = column->field.name;
        PgExecScript(conn, "ALTER TABLE " + schema.name + " RENAME COLUMN " + old_name + " TO " +
                               change.new_name);
        // The named checks carry the column's name too.
        for (const char* prefix : {"size_", "range_", "zero_"}) {
          const std::string from = prefix + LCase(old_name);
          const std::string to = prefix + LCase(change.new_name);
          PgResult found = PgExec(conn,
                                  "SELECT 1 FROM pg_constraint WHERE conrelid = $1::regclass "
                                  "AND conname = $2",
                                  {schema.name.c_str(), from.c_str()});
          if (PQntuples(found.get()) > 0) {
            PgExecScript(conn, "ALTER TABLE " + schema.name + " RENAME CONSTRAINT " + from + " TO " + to);
          }
        }
        return;
      }
    }
  });
}

TableSchema PgConnection::ReadTable(std::string_view name) { return PgReadTable(handle_.get(), name); }

std::vector<std::string> PgConnection::TableNames() { return PgTableNames(handle_.get()); }

void PgConnection::ChangeTable(const TableChange& change) {
  Forget();
  try {
    PgChangeTable(handle_.get(), change);
  } catch (...) {
    ReadCounters();
    throw;
  }
  ReadCounters();
}

}  // namespace zerbal::data
