#include "data/database.h"

#include <limits>

#include "base/convert.h"
#include "base/raise.h"
#include "data/engine.h"
#include "data/recordset_state.h"
#include "data/sqlite.h"

namespace zerbal::data {
Database::Database(std::shared_ptr<EngineConnection> connection, std::string name)
    : connection_(std::move(connection)), name_(std::move(name)) {}

Database::Database(Database&&) noexcept = default;

Database& Database::operator=(Database&& other) noexcept {
  if (this != &other) {
    Close();
    connection_ = std::move(other.connection_);
    name_ = std::move(other.name_);
    recordsets_ = std::move(other.recordsets_);
  }
  return *this;
}

Database::~Database() { Close(); }

EngineConnection& Database::Connection() const {
  if (!connection_ || connection_->retired()) Raise(errc::kObjectClosed, {}, kEngineSource);
  return *connection_;
}

void Database::Execute(std::string_view sql, int options) {
  EngineConnection& conn = Connection();
  conn.inserted_key().Forget();
  BoundStatement stmt = conn.Prepare(sql);
  if (sqlite3_column_count(stmt.get()) > 0) Raise(errc::kSelectInExecute, {}, kEngineSource);
  int rc;
  while ((rc = sqlite3_step(stmt.get())) == SQLITE_ROW) {
  }
  // Even a failed statement may have written (and rolled back) pages.
  conn.NoteOwnWrite();
  if (rc != SQLITE_DONE) RaiseEngineError(rc, conn.db());
  if (stmt.definition()) conn.TablesChanged();
  conn.inserted_key().AfterStatement(conn.db(), stmt.key_use());
}

Recordset Database::OpenRecordset(std::string_view sql, int type) {
  EngineConnection& conn = Connection();
  BoundStatement stmt = conn.Prepare(sql);
  const int columns = sqlite3_column_count(stmt.get());
  if (columns == 0) Raise(errc::kInvalidOperation, {}, kEngineSource);
  auto state = std::make_shared<RecordsetState>();
  for (int c = 0; c < columns; ++c) state->names.emplace_back(sqlite3_column_name(stmt.get(), c));
  if (const auto key = conn.inserted_key().ReadBack(conn.db(), stmt.key_use())) {
    state->values.push_back(Variant(static_cast<int32_t>(*key)));
    state->rows = 1;
  } else {
    int rc;
    while ((rc = sqlite3_step(stmt.get())) == SQLITE_ROW) {
      if (state->rows == std::numeric_limits<int32_t>::max()) Raise(errc::kOutOfMemory);
      for (int c = 0; c < columns; ++c) state->values.push_back(ColumnValue(stmt.get(), c));
      ++state->rows;
    }
    if (rc != SQLITE_DONE) RaiseEngineError(rc, conn.db());
  }
  std::erase_if(recordsets_, [](const auto& weak) { return weak.expired(); });
  recordsets_.push_back(state);
  return RecordsetStateAccess::Make(std::move(state));
}

std::vector<std::shared_ptr<RecordsetState>> Database::LiveRecordsets() const {
  std::vector<std::shared_ptr<RecordsetState>> live;
  for (const auto& weak : recordsets_) {
    if (auto state = weak.lock(); state && state->open) live.push_back(std::move(state));
  }
  return live;
}

int Database::RecordsetCount() const {
  Connection();
  return static_cast<int>(LiveRecordsets().size());
}

Recordset Database::RecordsetAt(int index) const {
  Connection();
  auto live = LiveRecordsets();
  if (index < 0 || index >= static_cast<int>(live.size())) {
    Raise(errc::kItemNotFound, {}, kEngineSource);
  }
  return RecordsetStateAccess::Make(live[index]);
}

void Database::Close() {
  for (const auto& state : LiveRecordsets()) state->Close();
  recordsets_.clear();
  connection_.reset();
}

Workspace::Workspace(std::string name, std::string user, std::string password, int type)
    : name_(std::move(name)), user_(std::move(user)) {}

Database Workspace::OpenDatabase(const std::string& path, bool exclusive, bool read_only,
                                 std::string_view connect) {
  if (!open_) Raise(errc::kObjectClosed, {}, kEngineSource);
  if (!connect.empty()) Raise(errc::kCannotOpen, "connect strings are not supported", kEngineSource);
  return Database(AcquireConnection(path, read_only), path);
}

}  // namespace zerbal::data
