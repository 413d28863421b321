// Owners of the engine's handles, and the one place where an engine result
// code becomes a numbered error.

#ifndef ZERBAL_DATA_SQLITE_H_
#define ZERBAL_DATA_SQLITE_H_

#include <sqlite3.h>

#include <string_view>

#include "data/connection.h"
#include "zerbal/variant.h"

namespace zerbal::data {

// Raises the error that the engine's result code `rc` stands for, with the
// engine's own message (taken from `db` when given) after the number's text.
[[noreturn]] void RaiseEngineError(int rc, sqlite3* db);

// Raises unless `rc` is SQLITE_OK.
inline void Check(int rc, sqlite3* db) {
  if (rc != SQLITE_OK) RaiseEngineError(rc, db);
}

// Move-only owner of a connection; closing never throws.
class DbHandle {
 public:
  DbHandle() = default;
  explicit DbHandle(sqlite3* db) : db_(db) {}
  DbHandle(DbHandle&& other) noexcept : db_(other.db_) { other.db_ = nullptr; }
  DbHandle& operator=(DbHandle&& other) noexcept;
  DbHandle(const DbHandle&) = delete;
  DbHandle& operator=(const DbHandle&) = delete;
  ~DbHandle();

  sqlite3* get() const { return db_; }

 private:
  sqlite3* db_ = nullptr;
};

// Move-only owner of a prepared statement.
class Statement {
 public:
  Statement() = default;
  explicit Statement(sqlite3_stmt* stmt) : stmt_(stmt) {}
  Statement(Statement&& other) noexcept : stmt_(other.stmt_) { other.stmt_ = nullptr; }
  Statement& operator=(Statement&& other) noexcept;
  Statement(const Statement&) = delete;
  Statement& operator=(const Statement&) = delete;
  ~Statement();

  sqlite3_stmt* get() const { return stmt_; }

 private:
  sqlite3_stmt* stmt_ = nullptr;
};

// The value of column `column` of the current row as the original engine
// gives it: Null, a 32-bit whole number (wider ones as a Double), a Double
// or a String.
Variant ColumnValue(sqlite3_stmt* stmt, int column);

// Prepares the one statement that `sql` must hold. Text with a second
// statement after the first is refused whole (3142); text with no statement
// at all is refused too (3129).
Statement PrepareOne(sqlite3* db, std::string_view sql);

}  // namespace zerbal::data

#endif  // ZERBAL_DATA_SQLITE_H_
