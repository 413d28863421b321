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

// How long a statement waits for another process's lock before it fails with
// 3260. The default suits people; tests shorten it.
std::chrono::milliseconds BusyTimeout();
void SetBusyTimeout(std::chrono::milliseconds timeout);

class EngineConnection {
 public:
  // Checks the path and opens it. Never creates a file: a missing file is
  // 3024, a missing folder or empty path 3044, a folder or unreadable file
  // 3051, a file that is not a database of ours 3343 (and is left exactly as
  // it was). A file without write permission, or in a folder without it, is
  // opened read-only, so reads work and writes fail with 3027.
  static std::shared_ptr<EngineConnection> Open(const std::string& path, bool read_only);

  ~EngineConnection();
  EngineConnection(const EngineConnection&) = delete;
  EngineConnection& operator=(const EngineConnection&) = delete;

  sqlite3* db() const { return handle_.get(); }

  // Closes the engine connection (its statements first); any later use
  // through a database that still holds it raises 3420.
  void Retire();
  bool retired() const { return handle_.get() == nullptr; }
  const std::string& path() const { return path_; }

  // The statement prepared (once per shape) with this call's values bound.
  // Raises 3075, 3129 or 3142 for text that cannot run (see dialect.h).
  BoundStatement Prepare(std::string_view sql);

  // The statement in the engine's own SQL, values written in (see dialect.h).
  std::string Translate(std::string_view sql) const;

  // The key of this connection's own last insert, for the query that
  // reads it back (see inserted_key.h).
  InsertedKey& inserted_key() { return inserted_key_; }

  // After a change of the tables: kept statements and indexes are looked
  // at again.
  void TablesChanged();

  // Whether this connection still stands for what is at its path: the file
  // is the one it opened and nobody has written it since its last use here.
  bool IsCurrent() const;

  // Takes note of the file as this connection's own statements left it.
  void NoteOwnWrite();

 private:
  EngineConnection(DbHandle handle, std::string path, FileIdentity identity)
      : handle_(std::move(handle)), path_(std::move(path)), identity_(identity) {}
  void Configure(bool write_ahead_log, bool read_only);

  DbHandle handle_;
  std::string path_;
  FileIdentity identity_;
  bool folder_read_only_ = false;  // opened as a file nobody changes
  IndexedTextColumns indexed_;
  StatementCache statements_;  // finalized before the handle closes
  InsertedKey inserted_key_;
};

// The connection for `path` on this thread: a kept one when it is still
// current, a new one otherwise.
std::shared_ptr<EngineConnection> AcquireConnection(const std::string& path, bool read_only);

// Runs several statements of trusted SQL (the schema scripts); errors are
// raised as numbered errors.
void ExecScript(sqlite3* db, const std::string& sql);

}  // namespace zerbal::data

#endif  // ZERBAL_DATA_ENGINE_H_
