#include "data/pg.h"

#include <cstdlib>
#include <cstring>
#include <limits>

#include "base/raise.h"
#include "data/connection.h"

namespace zerbal::data {
namespace {

// Type numbers of the server's catalogue.
constexpr Oid kBool = 16, kInt8 = 20, kInt2 = 21, kInt4 = 23, kFloat4 = 700, kFloat8 = 701,
              kNumeric = 1700;

bool Contains(std::string_view text, std::string_view part) {
  return text.find(part) != std::string_view::npos;
}

int CheckNumber(std::string_view constraint) {
  if (constraint.starts_with("size_")) return errc::kFieldTooSmall;
  if (constraint.starts_with("range_")) return errc::kNumericOverflow;
  if (constraint.starts_with("zero_")) return errc::kZeroLengthString;
  return errc::kDataTypeMismatch;
}

int NumberFor(std::string_view state, std::string_view constraint) {
  if (state == "23505") return errc::kDuplicateKey;
  if (state == "23514") return CheckNumber(constraint);
  if (state == "23502") return errc::kNullNotAllowed;
  if (state == "22001") return errc::kFieldTooSmall;
  if (state == "22003") return errc::kNumericOverflow;
  if (state == "55P03" || state == "57014" || state == "40P01" || state == "40001") {
    return errc::kLocked;
  }
  if (state == "25006" || state == "42501") return errc::kReadOnly;
  if (state == "42804" || state == "42883" || state == "42846") return errc::kDataTypeMismatch;
  if (state == "3D000") return errc::kDatabaseNotFound;
  if (state == "53100") return errc::kDiskFull;
  if (state == "53200") return errc::kOutOfMemory;
  if (state.starts_with("22")) return errc::kDataTypeMismatch;
  if (state.starts_with("08") || state.starts_with("57P") || state.starts_with("28")) {
    return errc::kCannotOpen;
  }
  if (state.starts_with("42")) return errc::kSyntaxError;
  return errc::kInvalidOperation;
}

std::string Trimmed(const char* message) {
  std::string text = message ? message : "";
  while (!text.empty() && (text.back() == '\n' || text.back() == ' ')) text.pop_back();
  return text;
}

}  // namespace

PgHandle PgConnect(const std::string& uri) {
  char* error = nullptr;
  PQconninfoOption* options = PQconninfoParse(uri.c_str(), &error);
  if (options == nullptr) {
    const std::string message = Trimmed(error);
    PQfreemem(error);
    Raise(errc::kInvalidPath, message, kEngineSource);
  }
  PQconninfoFree(options);
  PgHandle conn(PQconnectdb(uri.c_str()));
  if (!conn) Raise(errc::kOutOfMemory);
  if (PQstatus(conn.get()) != CONNECTION_OK) {
    const std::string message = Trimmed(PQerrorMessage(conn.get()));
    // The server names a missing database in its message only.
    const bool missing = Contains(message, "database \"") && Contains(message, "does not exist");
    Raise(missing ? errc::kDatabaseNotFound : errc::kCannotOpen, message, kEngineSource);
  }
  return conn;
}

std::string PgUriWithDatabase(const std::string& uri, const std::string& name) {
  const size_t authority = uri.find("://") + 3;
  const size_t path = uri.find_first_of("/?", authority);
  if (path == std::string::npos) return uri + "/" + name;
  const size_t end = uri[path] == '?' ? path : uri.find('?', path);
  return uri.substr(0, path) + "/" + name + (end == std::string::npos ? "" : uri.substr(end));
}

bool PgSucceeded(const PGresult* result) {
  if (result == nullptr) return false;
  const ExecStatusType status = PQresultStatus(result);
  return status == PGRES_COMMAND_OK || status == PGRES_TUPLES_OK || status == PGRES_EMPTY_QUERY;
}

void RaisePgError(PGconn* conn, const PGresult* result) {
  const char* state = result ? PQresultErrorField(result, PG_DIAG_SQLSTATE) : nullptr;
  const char* constraint = result ? PQresultErrorField(result, PG_DIAG_CONSTRAINT_NAME) : nullptr;
  std::string message = Trimmed(result ? PQresultErrorMessage(result) : PQerrorMessage(conn));
  if (message.empty()) message = Trimmed(PQerrorMessage(conn));
  if (state == nullptr) {
    // No answer from the server: the connection is gone.
    Raise(PQstatus(conn) == CONNECTION_OK ? errc::kInvalidOperation : errc::kCannotOpen, message,
          kEngineSource);
  }
  Raise(NumberFor(state, constraint ? constraint : ""), message, kEngineSource);
}

void PgExecScript(PGconn* conn, const std::string& sql) {
  PgResult result(PQexec(conn, sql.c_str()));
  if (!PgSucceeded(result.get())) RaisePgError(conn, result.get());
}

PgResult PgExec(PGconn* conn, const std::string& sql, const std::vector<const char*>& values) {
  PgResult result(PQexecParams(conn, sql.c_str(), static_cast<int>(values.size()), nullptr,
                               values.data(), nullptr, nullptr, 0));
  if (!PgSucceeded(result.get())) RaisePgError(conn, result.get());
  return result;
}

Variant PgValue(const PGresult* result, int row, int column) {
  if (PQgetisnull(result, row, column)) return Variant::Null();
  const char* text = PQgetvalue(result, row, column);
  switch (PQftype(result, column)) {
    case kInt2:
    case kInt4:
    case kInt8: {
      const long long n = std::strtoll(text, nullptr, 10);
      // The original engine has no wider whole number than 32 bits.
      if (n >= std::numeric_limits<int32_t>::min() && n <= std::numeric_limits<int32_t>::max()) {
        return Variant(static_cast<int32_t>(n));
      }
      return Variant(static_cast<double>(n));
    }
    case kFloat4:
    case kFloat8:
    case kNumeric: return Variant(std::strtod(text, nullptr));
    case kBool: return Variant(static_cast<int32_t>(text[0] == 't' ? 1 : 0));
    default: return Variant(std::string(text, static_cast<size_t>(PQgetlength(result, row, column))));
  }
}

}  // namespace zerbal::data
