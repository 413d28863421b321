// The tables of a database on a PostgreSQL server: made from the same
// scripts as a file's, read back as field definitions, and changed.

#ifndef ZERBAL_DATA_PG_SCHEMA_H_
#define ZERBAL_DATA_PG_SCHEMA_H_

#include <libpq-fe.h>

#include <string>
#include <string_view>
#include <vector>

#include "data/connection.h"
#include "data/field_def.h"

namespace zerbal::data {

// The column definition of `field` on the server, in the conventions of
// ColumnSql (field_def.h): Long integer, Integer smallint, Byte smallint
// with its range_ check, Double double precision, Text text in the
// case-blind collation with its size_ and zero_ checks, Counter an identity
// key.
std::string PgColumnSql(const FieldDef& field);

// Makes in the server database at `uri` the tables, indexes and rows that
// `script` (SQLite's SQL, the scripts of a new database) makes in a file,
// all in one transaction. The database must exist (3024 otherwise); 58 when
// one of the tables is already there, unless `replace`, which drops those
// tables first. Nothing else in the database is touched.
void CreateOnServer(const std::string& uri, const std::string& script, bool replace);

// The tables of the connection's schema, by name, in the order made.
std::vector<std::string> PgTableNames(PGconn* conn);

// The table named `name` (ignoring case); 3265 when there is none.
TableSchema PgReadTable(PGconn* conn, std::string_view name);

// Makes `change` on the server, inside a savepoint when a transaction is
// open (inside one of its own otherwise).
void PgChangeTable(PGconn* conn, const TableChange& change);

}  // namespace zerbal::data

#endif  // ZERBAL_DATA_PG_SCHEMA_H_
