#include "data/engine.h"

#include <atomic>
#include <list>

#include "base/convert.h"
#include "base/raise.h"
#include "data/collation.h"
#include "data/like_pattern.h"

namespace zerbal::data {
namespace {

// Connections kept per thread; a few cover the data and the lookup database
// with room for a second pair, and bound the open files.
constexpr size_t kKeptConnections = 4;

std::atomic<int64_t> g_busy_timeout_ms{5000};

int FoldedCollation(void*, int size_a, const void* a, int size_b, const void* b) {
  return CompareFolded(std::string_view(static_cast<const char*>(a), static_cast<size_t>(size_a)),
                       std::string_view(static_cast<const char*>(b), static_cast<size_t>(size_b)));
}

void LikeFunction(sqlite3_context* ctx, int argc, sqlite3_value** argv) {
  if (sqlite3_value_type(argv[0]) == SQLITE_NULL || sqlite3_value_type(argv[1]) == SQLITE_NULL) {
    sqlite3_result_null(ctx);
    return;
  }
  auto text = [](sqlite3_value* v) {
    const auto* p = reinterpret_cast<const char*>(sqlite3_value_text(v));
    return std::string_view(p ? p : "", static_cast<size_t>(sqlite3_value_bytes(v)));
  };
  // The engine calls like(pattern, value) for "value LIKE pattern".
  sqlite3_result_int(ctx, LikePattern(text(argv[1]), text(argv[0])) ? 1 : 0);
}

int64_t QueryInt(sqlite3* db, const char* sql) {
  Statement stmt = PrepareOne(db, sql);
  const int rc = sqlite3_step(stmt.get());
  if (rc == SQLITE_ROW) return sqlite3_column_int64(stmt.get(), 0);
  if (rc != SQLITE_DONE) RaiseEngineError(rc, db);
  return 0;
}

// The text columns that some index starts with: the only ones where a
// range helps a LIKE.
IndexedTextColumns FindIndexedTextColumns(sqlite3* db) {
  IndexedTextColumns names;
  Statement stmt = PrepareOne(
      db,
      "SELECT lower(c.name) FROM sqlite_schema AS m, pragma_index_list(m.name) AS il, "
      "pragma_index_info(il.name) AS ii, pragma_table_info(m.name) AS c "
      "WHERE m.type = 'table' AND ii.seqno = 0 AND c.name = ii.name AND c.type = 'TEXT'");
  int rc;
  while ((rc = sqlite3_step(stmt.get())) == SQLITE_ROW) {
    names.emplace(reinterpret_cast<const char*>(sqlite3_column_text(stmt.get(), 0)));
  }
  if (rc != SQLITE_DONE) RaiseEngineError(rc, db);
  return names;
}

struct Kept {
  std::string path;
  bool read_only;
  std::shared_ptr<EngineConnection> connection;
};

std::list<Kept>& KeptConnections() {
  thread_local std::list<Kept> kept;
  return kept;
}

}  // namespace

void PrepareEngine() {
  // Connections are never shared between threads, so the engine's global
  // memory statistics, and the lock taken around every allocation to keep
  // them, are not needed. Setting it only takes before the engine starts.
  static const bool prepared = (sqlite3_config(SQLITE_CONFIG_MEMSTATUS, 0), true);
  (void)prepared;
}

std::chrono::milliseconds BusyTimeout() { return std::chrono::milliseconds(g_busy_timeout_ms.load()); }
void SetBusyTimeout(std::chrono::milliseconds timeout) { g_busy_timeout_ms = timeout.count(); }

std::shared_ptr<EngineConnection> EngineConnection::Open(const std::string& path, bool read_only) {
  PrepareEngine();
  const FileIdentity id = InspectFile(path);
  const FileHeader header = ReadOwnHeader(path, kApplicationId);
  sqlite3* raw = nullptr;
  const int flags = (read_only || OnlyReadable(path, id) ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE) |
                    SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE;
  const int rc = sqlite3_open_v2(path.c_str(), &raw, flags, nullptr);
  DbHandle handle(raw);
  if (rc != SQLITE_OK) RaiseEngineError(rc, raw);
  std::shared_ptr<EngineConnection> conn(new EngineConnection(std::move(handle), path, id));
  conn->Configure(header.write_ahead_log);
  return conn;
}

void EngineConnection::Configure(bool write_ahead_log) {
  sqlite3* db = handle_.get();
  sqlite3_extended_result_codes(db, 1);
  sqlite3_busy_timeout(db, static_cast<int>(g_busy_timeout_ms.load()));
  // Text columns are declared NOCASE; on our connections that name folds
  // every Latin letter, as LIKE does.
  Check(sqlite3_create_collation(db, "NOCASE", SQLITE_UTF8, nullptr, FoldedCollation), db);
  Check(sqlite3_create_function(db, "like", 2, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr,
                                LikeFunction, nullptr, nullptr),
        db);
  // A file an earlier version left with a write-ahead log goes back to the
  // rollback journal, which leaves nothing beside the file between calls.
  if (write_ahead_log) {
    Statement mode = PrepareOne(db, "PRAGMA journal_mode = DELETE");
    const int rc = sqlite3_step(mode.get());
    if (rc != SQLITE_ROW) RaiseEngineError(rc, db);
    const auto* now = reinterpret_cast<const char*>(sqlite3_column_text(mode.get(), 0));
    // Another connection still using the log keeps the file in that mode.
    if (now == nullptr || std::string_view(now) != "delete") {
      Raise(errc::kLocked, path_ + ": in use with a write-ahead log", kEngineSource);
    }
  }
  // Every call's changes reach the operating system before the call returns,
  // so they survive a crash of the program; flushing them to the disk on
  // every call would cost one to two milliseconds a call.
  QueryInt(db, "PRAGMA synchronous = OFF");
  indexed_ = FindIndexedTextColumns(db);
  identity_ = InspectFile(path_);
}

BoundStatement EngineConnection::Prepare(std::string_view sql) {
  return statements_.Prepare(handle_.get(), sql, indexed_);
}

std::string EngineConnection::Translate(std::string_view sql) const {
  return InlinedSql(ShapeOf(sql), indexed_);
}

void EngineConnection::TablesChanged() {
  statements_.Clear();
  indexed_ = FindIndexedTextColumns(handle_.get());
}

bool EngineConnection::IsCurrent() const {
  try {
    return InspectFile(path_) == identity_;
  } catch (const Error&) {
    return false;
  }
}

void EngineConnection::NoteOwnWrite() {
  try {
    identity_ = InspectFile(path_);
  } catch (const Error&) {
    identity_ = FileIdentity{};  // gone: the next use opens afresh and says why
  }
}

std::shared_ptr<EngineConnection> AcquireConnection(const std::string& path, bool read_only) {
  std::list<Kept>& kept = KeptConnections();
  for (auto it = kept.begin(); it != kept.end(); ++it) {
    if (it->path != path || it->read_only != read_only) continue;
    if (it->connection->IsCurrent()) {
      kept.splice(kept.begin(), kept, it);
      it->connection->inserted_key().Forget();  // a key read back belongs to its own call
      sqlite3_busy_timeout(it->connection->db(), static_cast<int>(g_busy_timeout_ms.load()));
      return it->connection;
    }
    kept.erase(it);
    break;
  }
  auto conn = EngineConnection::Open(path, read_only);
  kept.push_front({path, read_only, conn});
  if (kept.size() > kKeptConnections) kept.pop_back();
  return conn;
}

void ExecScript(sqlite3* db, const std::string& sql) {
  Check(sqlite3_exec(db, sql.c_str(), nullptr, nullptr, nullptr), db);
}

}  // namespace zerbal::data
