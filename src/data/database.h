// The engine operations that the connection class needs: a workspace that
// opens databases, and a database that runs statements and opens recordsets.

#ifndef ZERBAL_DATA_DATABASE_H_
#define ZERBAL_DATA_DATABASE_H_

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "zerbal/recordset.h"

namespace zerbal::data {

class Connection;
struct RecordsetState;

// An open database. Move-only; destroying it closes it.
class Database {
 public:
  Database(Database&&) noexcept;
  Database& operator=(Database&&) noexcept;
  ~Database();

  // Runs one action statement (INSERT, UPDATE, DELETE or a table
  // definition). A query raises 3065; `options` has no effect.
  void Execute(std::string_view sql, int options = 0);

  // Runs one query and returns all its rows. A statement that gives no rows
  // raises 3219 and runs nothing; the type argument has no effect.
  Recordset OpenRecordset(std::string_view sql, int type = 0);

  // The recordsets opened here that are still open and held by someone.
  int RecordsetCount() const;
  Recordset RecordsetAt(int index) const;

  // Closes every recordset still open on it, then itself; after that any
  // use raises 3420. Closing twice does nothing.
  void Close();
  bool IsOpen() const { return connection_ != nullptr; }

  const std::string& Name() const { return name_; }

  // The engine connection behind it, for the table definitions and
  // transactions of data/table_defs.h and data/transaction.h; raises 3420
  // once closed.
  std::shared_ptr<Connection> Engine() const {
    Open();
    return connection_;
  }

 private:
  friend class Workspace;
  Database(std::shared_ptr<Connection> connection, std::string name);
  Connection& Open() const;
  std::vector<std::shared_ptr<RecordsetState>> LiveRecordsets() const;

  std::shared_ptr<Connection> connection_;
  std::string name_;
  std::vector<std::weak_ptr<RecordsetState>> recordsets_;
};

// A session on the engine: name, user and password are kept; type 2 is the
// only one there is.
class Workspace {
 public:
  Workspace(std::string name, std::string user, std::string password, int type);

  // Opens the database file at `path` (see EngineConnection::Open for the
  // errors), or the server database a postgresql:// URI names (see
  // PgConnection::Open). `exclusive` has no effect; `read_only` opens it read-only;
  // `connect` must be empty.
  Database OpenDatabase(const std::string& path, bool exclusive, bool read_only,
                        std::string_view connect);

  void Close() { open_ = false; }
  const std::string& Name() const { return name_; }

 private:
  std::string name_;
  std::string user_;
  bool open_ = true;
};

}  // namespace zerbal::data

#endif  // ZERBAL_DATA_DATABASE_H_
