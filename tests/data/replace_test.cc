// A database file replaced between calls, by a rename or a copy, is the one
// the next call works on, in this process and in any other; nothing of the
// file it replaced ever reaches it.

#include <filesystem>

#include "child_session.h"
#include "testutil.h"
#include "zerbal/databases.h"
#include "zerbal/datos_generales.h"
#include "zerbal/presentador.h"

namespace zerbal {
namespace {

namespace fs = std::filesystem;

enum class Replace { kRename, kCopy };

void ReplaceFile(const fs::path& with, const fs::path& target, Replace how) {
  if (how == Replace::kRename) {
    fs::rename(with, target);
  } else {
    fs::copy_file(with, target, fs::copy_options::overwrite_existing);  // same inode
  }
}

const char* Name(Replace how) { return how == Replace::kRename ? "rename" : "copy"; }

class ReplaceTest : public test::DatabaseTest {
 protected:
  // A presenter named `name`, saved through the public class.
  void SavePresenter(const std::string& path, const std::string& name) {
    cPresentador presentador;
    presentador.mdbmod(path);
    presentador.GuardarPresentador(test::PersonBuffer(0, "B20456786", name));
  }
  std::string PresenterName() {
    cPresentador presentador;
    presentador.mdbmod(mod_);
    Variant buffer;
    presentador.CargarPresentador(buffer);
    return buffer.IsArray() ? buffer(2).AsString() : "(none)";
  }
  // Another data database, with its own presenter.
  fs::path Backup(const std::string& name) {
    const fs::path backup = dir_ / "backup.db";
    CreateDataDatabase(backup);
    SavePresenter(backup.string(), name);
    return backup;
  }
  // Between calls no log with anything in it lies beside the file.
  void ExpectNoLogBeside(const char* what) {
    for (const char* suffix : {"-journal", "-wal"}) {
      std::error_code absent;
      const auto size = fs::file_size(mod_ + suffix, absent);
      EXPECT_TRUE(absent || size == 0) << what << ": " << suffix << " of " << size << " bytes";
    }
  }
};

TEST_F(ReplaceTest, TheNextCallSeesTheFileNowAtThePath) {
  for (Replace how : {Replace::kRename, Replace::kCopy}) {
    SavePresenter(mod_, "Orain SL");
    ASSERT_EQ(PresenterName(), "Orain SL") << Name(how);
    ReplaceFile(Backup("Kopia SL"), mod_, how);

    EXPECT_EQ(PresenterName(), "Kopia SL") << Name(how);
    ExpectNoLogBeside(Name(how));
    EXPECT_EQ(test::Shell(mod_, "SELECT nombre FROM TPresentador"), "Kopia SL") << Name(how);
    test::ChildSession other;
    EXPECT_NE(other.Ask(R"({"id":1,"op":"create","class":"zerbal.cDatosGenerales"})")
                  .find(R"("ok":true)"),
              std::string::npos);

    // A later write goes into the replacement, and leaves it sound.
    SavePresenter(mod_, "Ondoren SL");
    EXPECT_EQ(test::Shell(mod_, "SELECT nombre FROM TPresentador ORDER BY codpres"),
              "Kopia SL\nOndoren SL")
        << Name(how);
    EXPECT_EQ(test::Shell(mod_, "PRAGMA integrity_check"), "ok") << Name(how);
    test::Exec(mod_, "DELETE FROM TPresentador");
  }
}

TEST_F(ReplaceTest, TheLookupDatabaseIsSeenAfreshToo) {
  for (Replace how : {Replace::kRename, Replace::kCopy}) {
    cDatosGenerales datos;
    datos.mdblec(lec_);
    const std::string before = datos.ObtenerNombreProvincia("20", 0);
    const fs::path other = dir_ / "other-lec.db";
    CreateLookupDatabase(other, true);
    test::Exec(other.string(), "UPDATE TPROVINCIAS SET PRO_CAS = 'Gipuzkoa berria' WHERE PRO_ID = '20'");
    ReplaceFile(other, lec_, how);
    EXPECT_EQ(datos.ObtenerNombreProvincia("20", 0), "GIPUZKOA BERRIA")
        << Name(how) << ", was " << before;
    test::Exec(lec_, "UPDATE TPROVINCIAS SET PRO_CAS = '" + before + "' WHERE PRO_ID = '20'");
  }
}

TEST_F(ReplaceTest, ACompletedCallSurvivesTheProcessBeingKilled) {
  test::ChildSession child;
  child.Ask(R"({"id":1,"op":"create","class":"zerbal.cDatosGenerales"})");
  child.Ask(R"({"id":2,"op":"let","handle":1,"name":"mdbmod","value":")" + mod_ + "\"}");
  ASSERT_NE(child.Ask(R"({"id":3,"op":"call","handle":1,"name":"CambiarIdioma","args":["E"]})")
                .find(R"("ok":true)"),
            std::string::npos);
  child.Kill();
  EXPECT_EQ(test::Shell(mod_, "SELECT Idioma FROM tGeneral"), "E");
  EXPECT_EQ(test::Shell(mod_, "PRAGMA integrity_check"), "ok");
}

// Another process keeps the file open, idle between its calls, while the
// file is replaced under it.
TEST_F(ReplaceTest, AnotherProcessHoldingTheFileWorksOnTheReplacement) {
  for (Replace how : {Replace::kRename, Replace::kCopy}) {
    test::ChildSession child;
    auto save = [&](const std::string& code, const std::string& name) {
      return child.Ask(R"({"id":3,"op":"call","handle":1,"name":"GuardarPresentador","args":[)"
                       R"({"type":"Array","bounds":[[0,17]],"elements":[)" + code +
                       R"(,"B20456786",")" + name + R"(","CL","Nagusia",12,"","","","",20,)"
                       R"("20005","Donostia",943,"943123456","",0,""]}]})");
    };
    const std::string load = R"({"id":4,"op":"call","handle":1,"name":"CargarPresentador","args":[null]})";
    child.Ask(R"({"id":1,"op":"create","class":"zerbal.cPresentador"})");
    child.Ask(R"({"id":2,"op":"let","handle":1,"name":"mdbmod","value":")" + mod_ + "\"}");
    ASSERT_NE(save("0", "Umea SL").find(R"("ok":true)"), std::string::npos) << Name(how);
    ASSERT_NE(child.Ask(load).find("Umea SL"), std::string::npos) << Name(how);

    ReplaceFile(Backup("Kopia SL"), mod_, how);
    EXPECT_NE(child.Ask(load).find("Kopia SL"), std::string::npos) << Name(how);
    EXPECT_NE(save("1", "Umea berriz SL").find(R"("ok":true)"), std::string::npos) << Name(how);
    EXPECT_EQ(child.Finish(), 0);

    EXPECT_EQ(test::Shell(mod_, "SELECT codpres || ' ' || nombre FROM TPresentador"),
              "1 Umea berriz SL")
        << Name(how);
    EXPECT_EQ(test::Shell(mod_, "PRAGMA integrity_check"), "ok") << Name(how);
    EXPECT_EQ(PresenterName(), "Umea berriz SL") << Name(how);
    ExpectNoLogBeside(Name(how));
    test::Exec(mod_, "DELETE FROM TPresentador");
  }
}

}  // namespace
}  // namespace zerbal
