#include "data/database.h"

#include "base/convert.h"
#include "base/raise.h"
#include "data/connection.h"
#include "data/recordset_state.h"

namespace zerbal::data {
Database::Database(std::shared_ptr<Connection> connection, std::string name)
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

Connection& Database::Open() const {
  if (!connection_ || connection_->retired()) Raise(errc::kObjectClosed, {}, kEngineSource);
  return *connection_;
}

void Database::Execute(std::string_view sql, int) { Open().Execute(sql); }

Recordset Database::OpenRecordset(std::string_view sql, int) {
  Connection& conn = Open();
  auto state = std::make_shared<RecordsetState>();
  conn.Query(sql, *state);
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
  Open();
  return static_cast<int>(LiveRecordsets().size());
}

Recordset Database::RecordsetAt(int index) const {
  Open();
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
