#include "data/sqlite.h"

#include <limits>
#include <string>

#include "base/raise.h"

namespace zerbal::data {
namespace {

// Our size and range checks are named constraints, so the engine's message
// says which one failed.
int ConstraintNumber(int rc, std::string_view message) {
  switch (rc) {
    case SQLITE_CONSTRAINT_CHECK:
      if (message.find("size_") != std::string_view::npos) return errc::kFieldTooSmall;
      if (message.find("range_") != std::string_view::npos) return errc::kNumericOverflow;
      if (message.find("zero_") != std::string_view::npos) return errc::kZeroLengthString;
      return errc::kDataTypeMismatch;
    case SQLITE_CONSTRAINT_DATATYPE: return errc::kDataTypeMismatch;
    case SQLITE_CONSTRAINT_NOTNULL: return errc::kNullNotAllowed;
    case SQLITE_CONSTRAINT_PRIMARYKEY:
    case SQLITE_CONSTRAINT_UNIQUE: return errc::kDuplicateKey;
    default: return errc::kInvalidOperation;
  }
}

int NumberFor(int rc, std::string_view message) {
  switch (rc & 0xFF) {
    case SQLITE_CONSTRAINT: return ConstraintNumber(rc, message);
    case SQLITE_ERROR: return errc::kSyntaxError;
    case SQLITE_BUSY:
    case SQLITE_LOCKED: return errc::kLocked;
    case SQLITE_READONLY: return errc::kReadOnly;
    case SQLITE_CANTOPEN:
    case SQLITE_PERM:
    case SQLITE_AUTH: return errc::kCannotOpen;
    case SQLITE_NOTADB:
    case SQLITE_CORRUPT: return errc::kUnrecognizedFormat;
    case SQLITE_FULL: return errc::kDiskFull;
    case SQLITE_IOERR: return errc::kDiskIo;
    case SQLITE_NOMEM: return errc::kOutOfMemory;
    case SQLITE_TOOBIG: return errc::kFieldTooSmall;
    case SQLITE_MISMATCH: return errc::kDataTypeMismatch;
    default: return errc::kInvalidOperation;
  }
}

}  // namespace

void RaiseEngineError(int rc, sqlite3* db) {
  const std::string message =
      (db != nullptr && sqlite3_errcode(db) != SQLITE_OK) ? sqlite3_errmsg(db) : sqlite3_errstr(rc);
  Raise(NumberFor(rc, message), message, kEngineSource);
}

DbHandle& DbHandle::operator=(DbHandle&& other) noexcept {
  if (this != &other) {
    sqlite3_close_v2(db_);
    db_ = other.db_;
    other.db_ = nullptr;
  }
  return *this;
}

DbHandle::~DbHandle() { sqlite3_close_v2(db_); }

Statement& Statement::operator=(Statement&& other) noexcept {
  if (this != &other) {
    sqlite3_finalize(stmt_);
    stmt_ = other.stmt_;
    other.stmt_ = nullptr;
  }
  return *this;
}

Statement::~Statement() { sqlite3_finalize(stmt_); }

Variant ColumnValue(sqlite3_stmt* stmt, int column) {
  switch (sqlite3_column_type(stmt, column)) {
    case SQLITE_NULL:
      return Variant::Null();
    case SQLITE_INTEGER: {
      const int64_t n = sqlite3_column_int64(stmt, column);
      // The original engine has no wider whole number than 32 bits.
      if (n >= std::numeric_limits<int32_t>::min() && n <= std::numeric_limits<int32_t>::max()) {
        return Variant(static_cast<int32_t>(n));
      }
      return Variant(static_cast<double>(n));
    }
    case SQLITE_FLOAT:
      return Variant(sqlite3_column_double(stmt, column));
    default: {
      const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(stmt, column));
      return Variant(std::string(text ? text : "", sqlite3_column_bytes(stmt, column)));
    }
  }
}

Statement PrepareOne(sqlite3* db, std::string_view sql) {
  sqlite3_stmt* raw = nullptr;
  const char* tail = nullptr;
  const int rc = sqlite3_prepare_v2(db, sql.data(), static_cast<int>(sql.size()), &raw, &tail);
  Statement stmt(raw);
  if (rc != SQLITE_OK) RaiseEngineError(rc, db);
  if (raw == nullptr) Raise(errc::kNotAStatement, {}, kEngineSource);
  // Anything but blanks, comments and semicolons after the statement is a
  // second statement: refuse all of it, run none of it.
  const char* end = sql.data() + sql.size();
  while (tail != nullptr && tail < end) {
    sqlite3_stmt* next = nullptr;
    const char* next_tail = nullptr;
    const int next_rc =
        sqlite3_prepare_v2(db, tail, static_cast<int>(end - tail), &next, &next_tail);
    sqlite3_finalize(next);
    if (next_rc != SQLITE_OK || next != nullptr) {
      Raise(errc::kTextAfterStatement, std::string_view(tail, end - tail), kEngineSource);
    }
    if (next_tail == tail) break;
    tail = next_tail;
  }
  return stmt;
}

}  // namespace zerbal::data
