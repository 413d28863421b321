#include "data/connection.h"

#include <list>

#include "base/raise.h"
#include "base/text.h"
#include "data/engine.h"
#include "data/pg_engine.h"

namespace zerbal::data {
namespace {

// Connections kept per thread; a few cover the data and the lookup database
// with room for a second pair, and bound the open files.
constexpr size_t kKeptConnections = 4;

struct Kept {
  std::string path;
  bool read_only;
  std::shared_ptr<Connection> connection;
};

std::list<Kept>& KeptConnections() {
  thread_local std::list<Kept> kept;
  return kept;
}

std::shared_ptr<Connection> OpenConnection(const std::string& path, bool read_only) {
  if (IsServerName(path)) return PgConnection::Open(path, read_only);
  return EngineConnection::Open(path, read_only);
}

}  // namespace

bool IsServerName(std::string_view name) {
  auto starts = [&](std::string_view scheme) {
    return name.size() >= scheme.size() && SameText(name.substr(0, scheme.size()), scheme);
  };
  return starts("postgresql://") || starts("postgres://");
}

std::shared_ptr<Connection> AcquireConnection(const std::string& path, bool read_only) {
  std::list<Kept>& kept = KeptConnections();
  for (auto it = kept.begin(); it != kept.end(); ++it) {
    if (it->path != path || it->read_only != read_only) continue;
    if (it->connection->IsCurrent()) {
      kept.splice(kept.begin(), kept, it);
      it->connection->Reused();
      return it->connection;
    }
    it->connection->Retire();  // before the file at the path is opened again
    kept.erase(it);
    break;
  }
  auto conn = OpenConnection(path, read_only);
  kept.push_front({path, read_only, conn});
  if (kept.size() > kKeptConnections) {
    kept.back().connection->Retire();
    kept.pop_back();
  }
  return conn;
}

}  // namespace zerbal::data
