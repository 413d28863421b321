#include "testutil.h"

#include <stdlib.h>
#include <unistd.h>

#include <atomic>

#include <fstream>
#include <sstream>

#include "data/engine.h"
#include "data/pg.h"
#include "zerbal/databases.h"

namespace zerbal::test {

TempDir::TempDir() {
  std::string pattern = (std::filesystem::temp_directory_path() / "zerbal-test-XXXXXX").string();
  if (::mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("mkdtemp failed");
  path_ = pattern;
}

TempDir::~TempDir() {
  std::error_code ignored;
  std::filesystem::permissions(path_, std::filesystem::perms::owner_all,
                               std::filesystem::perm_options::add, ignored);
  std::filesystem::remove_all(path_, ignored);
}

namespace {

const char* ServerUri() {
  const char* uri = std::getenv("ZERBAL_TEST_PG");
  return uri != nullptr && *uri != '\0' ? uri : nullptr;
}

// With the server engine asked for and no server given, every test is
// skipped rather than run on files a second time.
class ServerEnvironment : public ::testing::Environment {
 public:
  void SetUp() override {
    if (OnServer() && ServerUri() == nullptr) GTEST_SKIP() << "ZERBAL_TEST_PG is not set";
  }
};
[[maybe_unused]] auto* const g_server_environment =
    ::testing::AddGlobalTestEnvironment(new ServerEnvironment);

void ServerExec(const std::string& uri, const std::string& sql) {
  data::PgHandle conn = data::PgConnect(uri);
  PQsetNoticeProcessor(conn.get(), [](void*, const char*) {}, nullptr);
  data::PgExecScript(conn.get(), sql);
}

}  // namespace

bool OnServer() {
  const char* engine = std::getenv("ZERBAL_TEST_ENGINE");
  return engine != nullptr && std::string_view(engine) == "postgresql";
}

std::string ServerDatabase::WithDatabase(const std::string& uri, const std::string& name) {
  return data::PgUriWithDatabase(uri, name);
}

ServerDatabase::ServerDatabase() {
  const char* server = ServerUri();
  if (server == nullptr) return;
  static std::atomic<int> counter{0};
  name_ = "zerbal_test_" + std::to_string(::getpid()) + "_" + std::to_string(counter++);
  ServerExec(server, "DROP DATABASE IF EXISTS " + name_);
  ServerExec(server, "CREATE DATABASE " + name_ + " TEMPLATE template0 ENCODING 'UTF8'");
  uri_ = WithDatabase(server, name_);
}

ServerDatabase::~ServerDatabase() {
  if (name_.empty()) return;
  try {
    ServerExec(ServerUri(), "DROP DATABASE IF EXISTS " + name_ + " WITH (FORCE)");
  } catch (const Error&) {
    // Left for the server's end; the tests' names never meet again.
  }
}

DatabaseTest::DatabaseTest() {
  if (OnServer()) {
    server_ = std::make_unique<ServerDatabase>();
    mod_ = server_->Uri();
    CreateDataDatabase(mod_);
    lec_ = (dir_ / std::string(kLookupFileName)).string();
    CreateLookupDatabase(lec_);
    return;
  }
  const DatabasePaths paths = CreateDatabases(dir_.path());
  mod_ = paths.data.string();
  lec_ = paths.lookup.string();
}

DatabaseTest::~DatabaseTest() = default;

Variant Buffer(const std::vector<Variant>& values, int extra) {
  Variant b(Array(0, static_cast<int32_t>(values.size()) - 1 + extra));
  for (size_t i = 0; i < values.size(); ++i) b(static_cast<int32_t>(i)) = values[i];
  return b;
}

Variant PersonBuffer(int32_t code, const std::string& nif, const std::string& name) {
  return Buffer({code, nif, name, "CL", "Kale Nagusia", 12, "", "B", "3", "izq", 20, "20005",
                 "Donostia", 943, "", "Ane", 0, "654321"});
}

std::optional<Error> ErrorOf(const std::function<void()>& body) {
  try {
    body();
  } catch (const Error& e) {
    return e;
  }
  return std::nullopt;
}

::testing::AssertionResult Raises(const std::function<void()>& body, int32_t number,
                                  const char* text) {
  const std::optional<Error> error = ErrorOf(body);
  if (!error) return ::testing::AssertionFailure() << "no error from: " << text;
  if (error->Number() != number) {
    return ::testing::AssertionFailure() << text << " raised " << error->Number() << " ("
                                         << error->Description() << "), not " << number;
  }
  return ::testing::AssertionSuccess();
}

std::vector<std::vector<Variant>> Rows(const std::string& path, const std::string& sql) {
  if (data::IsServerName(path)) {
    data::PgHandle conn = data::PgConnect(path);
    const data::PgResult result = data::PgExec(conn.get(), sql);
    std::vector<std::vector<Variant>> rows(PQntuples(result.get()));
    for (int r = 0; r < PQntuples(result.get()); ++r) {
      for (int c = 0; c < PQnfields(result.get()); ++c) rows[r].push_back(data::PgValue(result.get(), r, c));
    }
    return rows;
  }
  auto conn = data::EngineConnection::Open(path, false);
  data::Statement stmt = data::PrepareOne(conn->db(), sql);
  std::vector<std::vector<Variant>> rows;
  int rc;
  while ((rc = sqlite3_step(stmt.get())) == SQLITE_ROW) {
    std::vector<Variant>& row = rows.emplace_back();
    for (int c = 0; c < sqlite3_column_count(stmt.get()); ++c) {
      row.push_back(data::ColumnValue(stmt.get(), c));
    }
  }
  if (rc != SQLITE_DONE) data::RaiseEngineError(rc, conn->db());
  return rows;
}

void Exec(const std::string& path, const std::string& sql) {
  if (data::IsServerName(path)) return ServerExec(path, sql);
  auto conn = data::EngineConnection::Open(path, false);
  data::ExecScript(conn->db(), sql);
}

std::string Slurp(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  std::stringstream text;
  text << in.rdbuf();
  return text.str();
}

}  // namespace zerbal::test
