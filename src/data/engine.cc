#include "data/engine.h"

#include <atomic>
#include <limits>

#include "base/convert.h"
#include "base/raise.h"
#include "base/text.h"
#include "data/collation.h"
#include "data/like_pattern.h"
#include "data/recordset_state.h"

namespace zerbal::data {
namespace {

std::atomic<int64_t> g_busy_timeout_ms{5000};

int FoldedCollation(void*, int size_a, const void* a, int size_b, const void* b) {
  return CompareFolded(std::string_view(static_cast<const char*>(a), static_cast<size_t>(size_a)),
                       std::string_view(static_cast<const char*>(b), static_cast<size_t>(size_b)));
}

// After every commit: the log's pages go into the file and the log is cut
// to nothing, so no log with content is left beside the file between
// calls. It does not wait: while another process is reading or writing the
// log stays, and the next change, of whichever process, empties it. (Waiting
// here could wait for a process that waits for this one.)
int EmptyLog(void*, sqlite3* db, const char* name, int) {
  sqlite3_busy_handler(db, nullptr, nullptr);
  sqlite3_wal_checkpoint_v2(db, name, SQLITE_CHECKPOINT_TRUNCATE, nullptr, nullptr);
  sqlite3_busy_timeout(db, static_cast<int>(g_busy_timeout_ms.load()));
  return SQLITE_OK;
}

// The URI that opens `path` read-only, as a file nobody changes.
std::string ImmutableUri(const std::string& path) {
  std::string uri = "file:";
  for (char c : path) {
    if (c == '%' || c == '?' || c == '#') {
      static constexpr char kHex[] = "0123456789ABCDEF";
      uri += '%';
      uri += kHex[(static_cast<unsigned char>(c) >> 4) & 0xF];
      uri += kHex[static_cast<unsigned char>(c) & 0xF];
    } else {
      uri += c;
    }
  }
  return uri + "?mode=ro&immutable=1";
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

bool IsCounter(sqlite3* db, const std::string& table, const std::string& column) {
  const char* type = nullptr;
  int primary = 0;
  if (sqlite3_table_column_metadata(db, "main", table.c_str(), column.c_str(), &type, nullptr,
                                    nullptr, &primary, nullptr) != SQLITE_OK) {
    return false;
  }
  return primary != 0 && type != nullptr && SameText(type, "INTEGER");
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
  // In a folder that cannot be written the engine cannot keep the log's
  // index beside the file: the file is read as it stands. Nobody writes it
  // meanwhile through this folder, and any change is seen by the file's
  // identity and opened afresh.
  const bool folder_read_only = FolderReadOnly(path);
  const bool only_read = read_only || folder_read_only || FileReadOnly(path, id);
  const std::string name = folder_read_only ? ImmutableUri(path) : path;
  int flags = (only_read ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE) | SQLITE_OPEN_NOMUTEX |
              SQLITE_OPEN_EXRESCODE;
  if (folder_read_only) flags |= SQLITE_OPEN_URI;
  sqlite3* raw = nullptr;
  const int rc = sqlite3_open_v2(name.c_str(), &raw, flags, nullptr);
  DbHandle handle(raw);
  if (rc != SQLITE_OK) RaiseEngineError(rc, raw);
  std::shared_ptr<EngineConnection> conn(new EngineConnection(std::move(handle), path, id));
  conn->folder_read_only_ = folder_read_only;
  conn->Configure(header.write_ahead_log, only_read);
  return conn;
}

EngineConnection::~EngineConnection() { Retire(); }

void EngineConnection::Configure(bool write_ahead_log, bool read_only) {
  sqlite3* db = handle_.get();
  sqlite3_extended_result_codes(db, 1);
  sqlite3_busy_timeout(db, static_cast<int>(g_busy_timeout_ms.load()));
  // Text columns are declared NOCASE; on our connections that name folds
  // every Latin letter, as LIKE does.
  Check(sqlite3_create_collation(db, "NOCASE", SQLITE_UTF8, nullptr, FoldedCollation), db);
  Check(sqlite3_create_function(db, "like", 2, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr,
                                LikeFunction, nullptr, nullptr),
        db);
  if (!write_ahead_log && !read_only) QueryInt(db, "PRAGMA journal_mode = WAL");
  // Every call's changes reach the operating system before the call returns,
  // so they survive a crash of the program; flushing them to the disk on
  // every call would cost one to two milliseconds a call.
  QueryInt(db, "PRAGMA synchronous = OFF");
  // The log is emptied into the file after every change (see engine.h).
  sqlite3_wal_hook(db, EmptyLog, nullptr);
  indexed_ = FindIndexedTextColumns(db);
  identity_ = InspectFile(path());
}

void EngineConnection::Retire() {
  if (!handle_.get()) return;
  set_retired();
  statements_.Clear();
  // A connection whose file was replaced must not checkpoint, nor delete the
  // log and index that now sit beside another file: it just lets go.
  if (!IsCurrent()) sqlite3_db_config(handle_.get(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
  handle_ = DbHandle();
}

BoundStatement EngineConnection::Prepare(std::string_view sql) {
  return statements_.Prepare(handle_.get(), sql, indexed_);
}

std::string EngineConnection::Translate(std::string_view sql) const {
  return InlinedSql(sql, indexed_);
}

void EngineConnection::TablesChanged() {
  statements_.Clear();
  indexed_ = FindIndexedTextColumns(handle_.get());
}

bool EngineConnection::IsCurrent() const {
  try {
    // A file read as it stands, in a folder that can be written again, is
    // opened again to be written.
    if (folder_read_only_ && !FolderReadOnly(path())) return false;
    return InspectFile(path()) == identity_;
  } catch (const Error&) {
    return false;
  }
}

void EngineConnection::NoteOwnWrite() {
  try {
    identity_ = InspectFile(path());
  } catch (const Error&) {
    identity_ = FileIdentity{};  // gone: the next use opens afresh and says why
  }
}

void EngineConnection::Reused() {
  inserted_key_.Forget();  // a key read back belongs to its own call
  sqlite3_busy_timeout(handle_.get(), static_cast<int>(g_busy_timeout_ms.load()));
}

void EngineConnection::Execute(std::string_view sql) {
  inserted_key_.Forget();
  sqlite3* db = handle_.get();
  BoundStatement stmt = Prepare(sql);
  if (sqlite3_column_count(stmt.get()) > 0) Raise(errc::kSelectInExecute, {}, kEngineSource);
  int rc;
  while ((rc = sqlite3_step(stmt.get())) == SQLITE_ROW) {
  }
  // Even a failed statement may have written (and rolled back) pages.
  NoteOwnWrite();
  if (rc != SQLITE_DONE) RaiseEngineError(rc, db);
  if (stmt.definition()) TablesChanged();
  inserted_key_.AfterStatement(stmt.key_use(), sqlite3_changes64(db), sqlite3_last_insert_rowid(db));
}

void EngineConnection::Query(std::string_view sql, RecordsetState& out) {
  sqlite3* db = handle_.get();
  BoundStatement stmt = Prepare(sql);
  const int columns = sqlite3_column_count(stmt.get());
  if (columns == 0) Raise(errc::kInvalidOperation, {}, kEngineSource);
  for (int c = 0; c < columns; ++c) out.names.emplace_back(sqlite3_column_name(stmt.get(), c));
  const auto key = inserted_key_.ReadBack(
      stmt.key_use(), [&](const std::string& t, const std::string& c) { return IsCounter(db, t, c); });
  if (key) {
    out.values.push_back(Variant(static_cast<int32_t>(*key)));
    out.rows = 1;
    return;
  }
  int rc;
  while ((rc = sqlite3_step(stmt.get())) == SQLITE_ROW) {
    if (out.rows == std::numeric_limits<int32_t>::max()) Raise(errc::kOutOfMemory);
    for (int c = 0; c < columns; ++c) out.values.push_back(ColumnValue(stmt.get(), c));
    ++out.rows;
  }
  if (rc != SQLITE_DONE) RaiseEngineError(rc, db);
}

void EngineConnection::Begin() { ExecScript(handle_.get(), "BEGIN IMMEDIATE"); }

void EngineConnection::Commit() {
  ExecScript(handle_.get(), "COMMIT");
  NoteOwnWrite();
}

void EngineConnection::Rollback() noexcept {
  sqlite3_exec(handle_.get(), "ROLLBACK", nullptr, nullptr, nullptr);
  NoteOwnWrite();
  try {
    TablesChanged();  // the tables may be as they were before it began
  } catch (...) {
    // The statements are forgotten all the same; the indexes only help LIKE.
  }
}

void EngineConnection::CheckWritable() {
  if (sqlite3_db_readonly(handle_.get(), "main") == 1) Raise(errc::kReadOnly, path(), kEngineSource);
  Begin();
  Rollback();
}

TableSchema EngineConnection::ReadTable(std::string_view name) {
  return ReadTableSchema(handle_.get(), name);
}

std::vector<std::string> EngineConnection::TableNames() { return data::TableNames(handle_.get()); }

EngineConnection& SqliteOf(Connection& connection) {
  auto* sqlite = dynamic_cast<EngineConnection*>(&connection);
  if (sqlite == nullptr) Raise(errc::kInvalidOperation, "not a database file", kEngineSource);
  return *sqlite;
}

void ExecScript(sqlite3* db, const std::string& sql) {
  Check(sqlite3_exec(db, sql.c_str(), nullptr, nullptr, nullptr), db);
}

}  // namespace zerbal::data
