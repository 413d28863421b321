// The seam between the database layer and an engine: what a Database, a
// Transaction and the table definitions ask of the connection behind them.
// SQLite files (data/engine.h) and PostgreSQL servers (data/pg_engine.h)
// stand behind it; AcquireConnection picks one by the name it is given.

#ifndef ZERBAL_DATA_CONNECTION_H_
#define ZERBAL_DATA_CONNECTION_H_

#include <chrono>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "data/field_def.h"
#include "data/table_schema.h"

namespace zerbal::data {

struct RecordsetState;

// Source of every error that the database layer raises.
inline constexpr std::string_view kEngineSource = "zerbal.Database";

// One change of a table's definition (see data/table_defs.h).
struct TableChange {
  enum class Kind { kAppend, kDelete, kRename };
  Kind kind = Kind::kAppend;
  std::string table;             // as the definition names it
  std::vector<FieldDef> fields;  // the table's fields as they will be, in order
  std::string name;              // the field appended, deleted or renamed
  std::string new_name;          // kRename: its new name
  bool last = false;             // kAppend: the new field goes after every other
};

class Connection {
 public:
  virtual ~Connection() = default;
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;

  // The path or URI it was opened with.
  const std::string& path() const { return path_; }

  // Closes the engine connection; any later use through a database that
  // still holds it raises 3420.
  virtual void Retire() = 0;
  bool retired() const { return retired_; }

  // Whether a kept connection may serve the next call as it stands.
  virtual bool IsCurrent() const = 0;
  // Taken again from the kept ones for a new call.
  virtual void Reused() = 0;

  // Runs one action statement of the system's SQL; a query raises 3065.
  virtual void Execute(std::string_view sql) = 0;
  // Runs one query of the system's SQL into `out` (names, values, rows); a
  // statement that gives no rows raises 3219 and runs nothing.
  virtual void Query(std::string_view sql, RecordsetState& out) = 0;
  // The statement in the engine's own SQL, values written in.
  virtual std::string Translate(std::string_view sql) const = 0;

  // One unit of changes (data/transaction.h).
  virtual void Begin() = 0;
  virtual void Commit() = 0;
  virtual void Rollback() noexcept = 0;
  // 3027 when it can only be read, 3260 when another writer holds it.
  virtual void CheckWritable() = 0;

  // The table definitions (data/table_defs.h).
  virtual TableSchema ReadTable(std::string_view name) = 0;
  virtual std::vector<std::string> TableNames() = 0;
  virtual void ChangeTable(const TableChange& change) = 0;

 protected:
  explicit Connection(std::string path) : path_(std::move(path)) {}
  void set_retired() { retired_ = true; }

 private:
  std::string path_;
  bool retired_ = false;
};

// How long a statement waits for another process's lock before it fails with
// 3260. The default suits people; tests shorten it.
std::chrono::milliseconds BusyTimeout();
void SetBusyTimeout(std::chrono::milliseconds timeout);

// Whether `name` names a database on a server (postgresql:// or
// postgres://) rather than a file.
bool IsServerName(std::string_view name);

// The connection for `path` on this thread: a kept one when it is still
// current, a new one otherwise (a file through SQLite, a server URI through
// PostgreSQL).
std::shared_ptr<Connection> AcquireConnection(const std::string& path, bool read_only);

}  // namespace zerbal::data

#endif  // ZERBAL_DATA_CONNECTION_H_
