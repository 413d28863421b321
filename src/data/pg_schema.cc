// A new database's tables made on a PostgreSQL server from the scripts that
// make a file: the scripts run on a file in memory, whose tables are then
// written again for the server, one source for both engines.

#include <set>

#include "base/convert.h"
#include "base/raise.h"
#include "data/engine.h"
#include "data/pg.h"
#include "data/pg_schema.h"

namespace zerbal::data {
namespace {

// Texts compared as the original engine does: ignoring case (ICU's level 2
// keeps accents, drops case).
constexpr std::string_view kCollation =
    "CREATE COLLATION IF NOT EXISTS zerbal_nocase "
    "(provider = icu, locale = 'und-u-ks-level2', deterministic = false)";

void CopyRows(sqlite3* from, PGconn* to, const TableSchema& table) {
  std::string columns, params;
  for (const Column& c : table.columns) {
    columns += (columns.empty() ? "" : ", ") + c.field.name;
    params += (params.empty() ? "$" : ", $") + std::to_string(&c - table.columns.data() + 1);
  }
  const std::string insert = "INSERT INTO " + table.name + " (" + columns + ") VALUES (" + params + ")";
  Statement rows = PrepareOne(from, "SELECT " + columns + " FROM " + table.name);
  int rc;
  bool any = false;
  while ((rc = sqlite3_step(rows.get())) == SQLITE_ROW) {
    std::vector<const char*> values;
    for (int c = 0; c < sqlite3_column_count(rows.get()); ++c) {
      values.push_back(reinterpret_cast<const char*>(sqlite3_column_text(rows.get(), c)));
    }
    PgExec(to, insert, values);
    any = true;
  }
  if (rc != SQLITE_DONE) RaiseEngineError(rc, from);
  for (const Column& c : table.columns) {
    if (!c.field.counter || !any) continue;
    PgExecScript(to, "SELECT setval(pg_get_serial_sequence('" + table.name + "', '" + c.field.name +
                         "'), (SELECT max(" + c.field.name + ") FROM " + table.name + "))");
  }
}

}  // namespace

void CreateOnServer(const std::string& uri, const std::string& script, bool replace) {
  PrepareEngine();
  sqlite3* raw = nullptr;
  const int rc = sqlite3_open_v2(":memory:", &raw, SQLITE_OPEN_READWRITE, nullptr);
  DbHandle file(raw);
  if (rc != SQLITE_OK) RaiseEngineError(rc, raw);
  ExecScript(file.get(), script);

  PgHandle server = PgConnect(uri);
  PGconn* conn = server.get();
  PQsetNoticeProcessor(conn, [](void*, const char*) {}, nullptr);
  std::set<std::string> present;
  for (const std::string& name : PgTableNames(conn)) present.insert(LCase(name));
  std::vector<TableSchema> tables;
  for (const std::string& name : data::TableNames(file.get())) {
    tables.push_back(ReadTableSchema(file.get(), name));
    if (present.count(LCase(name)) > 0 && !replace) {
      Raise(errc::kFileAlreadyExists, uri + ": " + name);
    }
  }
  PgExecScript(conn, "BEGIN");
  try {
    for (const TableSchema& table : tables) {
      if (present.count(LCase(table.name)) > 0) PgExecScript(conn, "DROP TABLE " + table.name + " CASCADE");
    }
    PgExecScript(conn, std::string(kCollation));
    for (const TableSchema& table : tables) {
      std::string create = "CREATE TABLE " + table.name + " (";
      for (const Column& c : table.columns) {
        create += (&c == &table.columns.front() ? "\n  " : ",\n  ") + PgColumnSql(c.field);
      }
      PgExecScript(conn, create + "\n)");
      // The indexes, written alike for both engines.
      for (const std::string& sql : table.dependents) PgExecScript(conn, sql);
      CopyRows(file.get(), conn, table);
    }
    PgExecScript(conn, "COMMIT");
  } catch (...) {
    PgResult ignored(PQexec(conn, "ROLLBACK"));
    throw;
  }
}

}  // namespace zerbal::data
