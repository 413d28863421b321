// Engine connections: one SQLite connection per database file and thread,
// set up so that the statements the system builds behave as the original
// engine would (wildcards of LIKE, case-blind text, typed columns).
//
// Opening a database is a per-call affair in the system's design; the
// connections behind it are kept per thread and reused while the file on
// disk is untouched since this thread last used it (same device, inode,
// size, times and write permission). Anything else, a file renamed or
// copied into place or written by another process, is opened afresh.
//
// Files use a write-ahead log, emptied into the file and cut to nothing
// after every change: between calls there is no log with content beside a
// database that a file put in its place could be paired with. A connection
// whose file was replaced is let go without touching the log and index
// beside the path, which belong to the new file.

#ifndef ZERBAL_DATA_ENGINE_H_
#define ZERBAL_DATA_ENGINE_H_

#include <sqlite3.h>

#include <chrono>
#include <memory>
#include <string>
#include <string_view>

#include "data/connection.h"
#include "data/dialect.h"
#include "data/file_identity.h"
#include "data/inserted_key.h"
#include "data/sqlite.h"
#include "data/statement_cache.h"

namespace zerbal::data {

// Marks the files that this system created, so that a foreign file is never
// taken for one of ours ('zrbl').
inline constexpr int32_t kApplicationId = 0x7A72626C;

// Settings of the engine that must come before its first use; every path
// that opens a file calls it first.
void PrepareEngine();

// A SQLite file behind the seam of data/connection.h.
class EngineConnection final : public Connection {
 public:
  // Checks the path and opens it. Never creates a file: a missing file is
  // 3024, a missing folder or empty path 3044, a folder or unreadable file
  // 3051, a file that is not a database of ours 3343 (and is left exactly as
  // it was). A file without write permission, or in a folder without it, is
  // opened read-only, so reads work and writes fail with 3027.
  static std::shared_ptr<EngineConnection> Open(const std::string& path, bool read_only);

  ~EngineConnection() override;

  sqlite3* db() const { return handle_.get(); }

  void Retire() override;
  bool IsCurrent() const override;
  void Reused() override;
  void Execute(std::string_view sql) override;
  void Query(std::string_view sql, RecordsetState& out) override;
  std::string Translate(std::string_view sql) const override;
  void Begin() override;
  void Commit() override;
  void Rollback() noexcept override;
  void CheckWritable() override;
  TableSchema ReadTable(std::string_view name) override;
  std::vector<std::string> TableNames() override;
  void ChangeTable(const TableChange& change) override;

  // The statement prepared (once per shape) with this call's values bound.
  // Raises 3075, 3129 or 3142 for text that cannot run (see dialect.h).
  BoundStatement Prepare(std::string_view sql);

  // The key of this connection's own last insert, for the query that
  // reads it back (see inserted_key.h).
  InsertedKey& inserted_key() { return inserted_key_; }

  // After a change of the tables: kept statements and indexes are looked
  // at again.
  void TablesChanged();

  // IsCurrent: the file at its path is the one it opened and nobody has
  // written it since its last use here.

  // Takes note of the file as this connection's own statements left it.
  void NoteOwnWrite();

 private:
  EngineConnection(DbHandle handle, std::string path, FileIdentity identity)
      : Connection(std::move(path)), handle_(std::move(handle)), identity_(identity) {}
  void Configure(bool write_ahead_log, bool read_only);

  DbHandle handle_;
  FileIdentity identity_;
  bool folder_read_only_ = false;  // opened as a file nobody changes
  IndexedTextColumns indexed_;
  StatementCache statements_;  // finalized before the handle closes
  InsertedKey inserted_key_;
};

// The SQLite connection behind `connection`; 3219 for another engine's.
EngineConnection& SqliteOf(Connection& connection);

// Runs several statements of trusted SQL (the schema scripts); errors are
// raised as numbered errors.
void ExecScript(sqlite3* db, const std::string& sql);

}  // namespace zerbal::data

#endif  // ZERBAL_DATA_ENGINE_H_
