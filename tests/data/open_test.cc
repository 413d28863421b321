// Opening a database file: every bad path gets its number and no file appears.

#include <sqlite3.h>
#include <sys/stat.h>

#include <fstream>

#include "data/engine.h"
#include "testutil.h"
#include "zerbal/conexion_dao.h"
#include "zerbal/databases.h"

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
  }
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
  };
  for (const auto& row : rows) {
    const auto error = test::ErrorOf([&] { Open(row.path.string()); });
    ASSERT_TRUE(error) << row.path;
    EXPECT_EQ(error->Number(), row.error) << row.path << ": " << error->Description();
    EXPECT_EQ(error->Source(), "zerbal.Database");
  }
  EXPECT_FALSE(fs::exists(dir_ / "missing.db"));
  EXPECT_FALSE(fs::exists(dir_ / "no"));
  EXPECT_EQ(fs::file_size(dir_ / "empty.db"), 0u) << "a refused file is left as it was";
}

TEST_F(OpenTest, AFileWithoutWritePermissionIsReadOnly) {
  Open(mod_);
  Conexion().execute("INSERT INTO TDeclarante (dni_cifd) VALUES ('1')");
  Conexion().Cerrar();
  fs::permissions(mod_, fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
  Open(mod_);
  EXPECT_EQ(Count("TDeclarante"), 1);
  EXPECT_RAISES(Conexion().execute("INSERT INTO TDeclarante (dni_cifd) VALUES ('2')"), 3027);
  EXPECT_EQ(Count("TDeclarante"), 1);
  fs::permissions(mod_, fs::perms::owner_write, fs::perm_options::add);
  Open(mod_);
  Conexion().execute("INSERT INTO TDeclarante (dni_cifd) VALUES ('2')");
  EXPECT_EQ(Count("TDeclarante"), 2) << "writable again once the permission is back";
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

TEST_F(OpenTest, AFileReplacedOnDiskIsOpenedAfresh) {
  Open(mod_);
  Conexion().execute("INSERT INTO TDeclarante (dni_cifd) VALUES ('old')");
  Conexion().Cerrar();
  CreateDataDatabase(mod_, /*replace=*/true);
  Open(mod_);
  EXPECT_EQ(Count("TDeclarante"), 0);
  Conexion().execute("INSERT INTO TDeclarante (dni_cifd) VALUES ('new')");
  EXPECT_EQ(test::Rows(mod_, "SELECT dni_cifd FROM TDeclarante"),
            (std::vector<std::vector<Variant>>{{"new"}}));
}

}  // namespace
}  // namespace zerbal
