// Owners of libpq's handles, and the one place where a server's error
// (its SQLSTATE) becomes a numbered error.

#ifndef ZERBAL_DATA_PG_H_
#define ZERBAL_DATA_PG_H_

#include <libpq-fe.h>

#include <memory>
#include <string>
#include <string_view>

#include "zerbal/variant.h"

namespace zerbal::data {

struct PgConnCloser {
  void operator()(PGconn* conn) const { PQfinish(conn); }
};
using PgHandle = std::unique_ptr<PGconn, PgConnCloser>;

struct PgResultCloser {
  void operator()(PGresult* result) const { PQclear(result); }
};
using PgResult = std::unique_ptr<PGresult, PgResultCloser>;

// Connects to the server database that `uri` names. Raises 3044 for a URI
// that cannot be read, 3024 when the database does not exist, 3051 when the
// server cannot be reached or refuses the user or password. Creates nothing.
PgHandle PgConnect(const std::string& uri);

// `uri` (a server URI) naming the database `name` instead of its own.
std::string PgUriWithDatabase(const std::string& uri, const std::string& name);

// Whether `result` is a success (commands, rows, or an empty query).
bool PgSucceeded(const PGresult* result);

// Raises the error that a failed `result` stands for (or the connection's
// own error when there is no result): unique keys 3022, text sizes 3163,
// ranges 3349, values of the wrong type 3464, lock and statement timeouts
// 3260, read-only 3027, other statement errors 3075, a lost connection 3051.
[[noreturn]] void RaisePgError(PGconn* conn, const PGresult* result);

// Runs trusted SQL (several statements, no values); raises as above.
void PgExecScript(PGconn* conn, const std::string& sql);

// Runs one statement with text values (null pointers for Null); raises as
// above and returns the result.
PgResult PgExec(PGconn* conn, const std::string& sql, const std::vector<const char*>& values = {});

// The value of a cell as the original engine gives it: Null, a 32-bit whole
// number (wider ones as a Double), a Double or a String.
Variant PgValue(const PGresult* result, int row, int column);

}  // namespace zerbal::data

#endif  // ZERBAL_DATA_PG_H_
