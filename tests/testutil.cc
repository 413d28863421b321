#include "testutil.h"

#include <stdlib.h>

#include <fstream>
#include <sstream>

#include "data/engine.h"
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

DatabaseTest::DatabaseTest() {
  const DatabasePaths paths = CreateDatabases(dir_.path());
  mod_ = paths.data.string();
  lec_ = paths.lookup.string();
}

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
