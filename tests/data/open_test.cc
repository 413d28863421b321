// Opening a database file: every bad path gets its number and no file appears.

#include <sqlite3.h>
#include <sys/stat.h>

#include <algorithm>
#include <fstream>

#include "data/engine.h"
#include "testutil.h"
#include "zerbal/conexion_dao.h"

namespace zerbal {
namespace {

namespace fs = std::filesystem;

class OpenTest : public test::DatabaseTest {
 protected:
  static void Open(const std::string& path) {
    Conexion().mdb(bd347mod);
    Conexion().InicializaBD(path);
  }
  int64_t Count(const std::string& table) {
    Recordset rs = Conexion().openRecordset("SELECT count(*) FROM " + table);
    return rs.Fields(0).Value().AsLong();
  }
};

TEST_F(OpenTest, BadPathsGetTheirNumbersAndCreateNothing) {
  std::ofstream(dir_ / "notes.txt") << "not a database";
  std::ofstream(dir_ / "empty.db");
  {
    sqlite3* foreign = nullptr;
    sqlite3_open((dir_ / "foreign.db").c_str(), &foreign);
    sqlite3_exec(foreign, "CREATE TABLE t (x); INSERT INTO t VALUES (1)", nullptr, nullptr,
                 nullptr);
    sqlite3_close(foreign);
    sqlite3_open((dir_ / "foreign-wal.db").c_str(), &foreign);
    sqlite3_exec(foreign, "PRAGMA journal_mode = WAL; CREATE TABLE t (x)", nullptr, nullptr,
                 nullptr);
    sqlite3_close(foreign);
  }
  fs::copy_file(mod_, dir_ / "truncated.db");
  fs::resize_file(dir_ / "truncated.db", 1024);
  std::vector<fs::path> before;
  for (const auto& entry : fs::directory_iterator(dir_.path())) before.push_back(entry.path());
  const struct {
    fs::path path;
    int32_t error;
  } rows[] = {
      {dir_ / "missing.db", errc::kDatabaseNotFound},
      {dir_ / "no" / "folder.db", errc::kInvalidPath},
      {"", errc::kInvalidPath},
      {dir_.path(), errc::kCannotOpen},
      {dir_ / "notes.txt", errc::kUnrecognizedFormat},
      {dir_ / "empty.db", errc::kUnrecognizedFormat},
      {dir_ / "foreign.db", errc::kUnrecognizedFormat},
      {dir_ / "foreign-wal.db", errc::kUnrecognizedFormat},
      {dir_ / "truncated.db", errc::kUnrecognizedFormat},
  };
  for (const auto& row : rows) {
    const auto error = test::ErrorOf([&] { Open(row.path.string()); });
    ASSERT_TRUE(error) << row.path;
    EXPECT_EQ(error->Number(), row.error) << row.path << ": " << error->Description();
    EXPECT_EQ(error->Source(), "zerbal.Database");
  }
  std::vector<fs::path> after;
  for (const auto& entry : fs::directory_iterator(dir_.path())) after.push_back(entry.path());
  std::sort(before.begin(), before.end());
  std::sort(after.begin(), after.end());
  EXPECT_EQ(after, before) << "nothing created beside a refused file";
  EXPECT_EQ(fs::file_size(dir_ / "empty.db"), 0u) << "a refused file is left as it was";
}

TEST_F(OpenTest, AFileOrFolderWithoutWritePermissionIsReadOnly) {
  const auto read_only = fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read;
  const auto folder_read_only = read_only | fs::perms::owner_exec;
  const fs::path folder = dir_.path();
  const struct {
    const char* name;
    fs::path path;
    fs::perms perms;
  } rows[] = {{"file", mod_, read_only}, {"folder", folder, folder_read_only}};
  int64_t expected = 0;
  for (const auto& row : rows) {
    Open(mod_);
    Conexion().execute("INSERT INTO TDeclarante (dni_cifd) VALUES ('1')");
    ++expected;
    Conexion().Cerrar();
    // Written by another process, so this one opens it afresh.
    test::Exec(mod_, "UPDATE tGeneral SET ActOnline = ActOnline + 1");
    const fs::perms saved = fs::status(row.path).permissions();
    fs::permissions(row.path, row.perms);
    Open(mod_);
    EXPECT_EQ(Count("TDeclarante"), expected) << row.name;
    EXPECT_RAISES(Conexion().execute("INSERT INTO TDeclarante (dni_cifd) VALUES ('2')"), 3027)
        << row.name;
    EXPECT_EQ(Count("TDeclarante"), expected) << row.name;
    fs::permissions(row.path, saved);
    Open(mod_);
    Conexion().execute("INSERT INTO TDeclarante (dni_cifd) VALUES ('2')");
    ++expected;
    EXPECT_EQ(Count("TDeclarante"), expected) << row.name << ": writable again";
  }
}

TEST_F(OpenTest, AWriterWaitsForALockThenGivesUp) {
  const auto saved = data::BusyTimeout();
  data::SetBusyTimeout(std::chrono::milliseconds(50));
  sqlite3* other = nullptr;
  ASSERT_EQ(sqlite3_open(mod_.c_str(), &other), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(other, "BEGIN IMMEDIATE; INSERT INTO tGeneral VALUES (1, 'E')", nullptr,
                         nullptr, nullptr),
            SQLITE_OK);
  Open(mod_);
  EXPECT_RAISES(Conexion().execute("UPDATE tGeneral SET Idioma = 'E'"), 3260);
  EXPECT_EQ(Count("tGeneral"), 1) << "readers are not blocked by the writer";
  sqlite3_exec(other, "ROLLBACK", nullptr, nullptr, nullptr);
  sqlite3_close(other);
  Conexion().execute("UPDATE tGeneral SET Idioma = 'E'");
  data::SetBusyTimeout(saved);
}

}  // namespace
}  // namespace zerbal
