// A database on a PostgreSQL server behind the seam of data/connection.h,
// named by a URI (postgresql://user@host:port/dbname or ?host=/socket/dir).
//
// The system's SQL goes through the same shapes as on a file (dialect.h:
// values lifted into parameters, what the original engine would refuse
// refused) and is then written for the server (TranslateForServer) and
// prepared once per shape on the connection; each call runs one statement
// through the extended query protocol. Text columns use a case-blind
// collation, so "=" and "<>" ignore case; LIKE becomes a case-blind regular
// expression. An INSERT into a table with a counter returns its key, which
// the SELECT MAX that reads it back is then answered with (inserted_key.h):
// with several writers at once each save reads its own key.
//
// Connections are kept per thread like files; one whose server has gone is
// opened again on the next call, and a call that finds it gone between
// calls is sent again once on a new connection.

#ifndef ZERBAL_DATA_PG_ENGINE_H_
#define ZERBAL_DATA_PG_ENGINE_H_

#include <chrono>
#include <map>
#include <memory>
#include <string>
#include <unordered_map>

#include "data/connection.h"
#include "data/dialect.h"
#include "data/inserted_key.h"
#include "data/pg.h"

namespace zerbal::data {

class PgConnection final : public Connection {
 public:
  // Connects (see PgConnect for the errors) and checks that the database
  // holds tables: one without any is 3343 (init has not made it). Opening
  // creates nothing.
  static std::shared_ptr<PgConnection> Open(const std::string& uri, bool read_only);
  ~PgConnection() override;

  PGconn* conn() const { return handle_.get(); }

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

 private:
  // One shape: its translation, and its name once prepared on the server.
  struct Prepared {
    std::string name;
    std::string sql;
    std::vector<Bind> binds;
    KeyUse key_use;
    std::vector<std::string> names;  // of its columns, as written
    bool returning = false;  // gives the key of the row it inserts
    bool on_server = false;
  };

  PgConnection(std::string uri, PgHandle handle, bool read_only)
      : Connection(std::move(uri)), handle_(std::move(handle)), read_only_(read_only) {}
  void Configure();
  void ReadCounters();
  Prepared& Entry(const Shape& shape);
  // Runs the shape with its values; raises what the server reports. Sends it
  // again once on a new connection when the old one is found gone outside a
  // transaction, and prepares it again when the tables changed under it.
  PgResult Run(const Shape& shape, Prepared& entry);
  PgResult RunOnce(const Shape& shape, Prepared& entry);
  void RunDefinition(const Shape& shape);
  void Reconnect();
  void Forget();
  std::string CounterOf(std::string_view table) const;

  PgHandle handle_;
  bool read_only_;
  std::chrono::milliseconds lock_timeout_{-1};
  std::map<std::string, std::string, std::less<>> counters_;  // table -> its counter, lower case
  std::unordered_map<std::string, std::unique_ptr<Prepared>> prepared_;
  int next_name_ = 0;
  InsertedKey inserted_key_;
};

}  // namespace zerbal::data

#endif  // ZERBAL_DATA_PG_ENGINE_H_
