// The upgrade of earlier years' databases: each group by its marker, the
// result against a new database, the backup copy, and the databases the
// upgrade refuses.

#include "zerbal/traspaso.h"

#include <sqlite3.h>
#include <unistd.h>

#include <array>
#include <fstream>

#include "data/engine.h"
#include "data/transaction.h"
#include "upgrade/columnas.h"
#include "upgrade/copia_seguridad.h"
#include "upgrade/grupos.h"
#include "upgrade/upgrade_fixture.h"
#include "zerbal/databases.h"

namespace zerbal {
namespace {

namespace fs = std::filesystem;
using test::TextRows;

// What each group leaves in the rows of FillEarlier.
struct Outcome {
  const char* sql;
  TextRows rows;
};
const Outcome kOutcomes[4] = {
    {"SELECT impmet, impinm, paiso FROM tOperadores ORDER BY codope",
     {{"0", "0", " "}, {"0", "0", "724"}}},
    {"SELECT ejerimpmet, impopeT1, impmobT4, claverep FROM tOperadores ORDER BY codope",
     {{"0", "0", "0", "R"}, {"0", "0", "0", "R"}}},
    {"SELECT siglaspaisintra, nifpaisintra, opeivacaja, opeinvsujpas, operegposadu, "
     "impanudevopecaj FROM tOperadores ORDER BY codope",
     {{"", "", " ", " ", " ", "0"}, {"", "", " ", " ", " ", "0"}}},
    {"SELECT provi, prova, paiso FROM tArrendamientos ORDER BY codarr",
     {{"20", "0", " "}, {"7", "7", "12"}}},
};

class TraspasoTest : public ::testing::Test {
 protected:
  void Make(int schema) {
    CreateDatabases(dir_.path(), true, schema);
    test::FillEarlier(mod_, schema);
  }
  void Run(const std::string& backup_folder) {
    cTraspaso traspaso;
    traspaso.mdbmod(mod_);
    traspaso.mdblec(lec_);
    traspaso.mdbPath(backup_folder);
    EXPECT_FALSE(traspaso.Traspaso());
  }
  std::vector<fs::path> Files() const {
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(dir_.path())) files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
  }

  test::TempDir dir_;
  const std::string mod_ = (dir_ / kDataFileName).string();
  const std::string lec_ = (dir_ / kLookupFileName).string();
  const std::string folder_ = (dir_.path() / "").string();
  const std::string copia_ = folder_ + std::string(upgrade::kCopiaSeguridad);
};

TEST_F(TraspasoTest, EachGroupRunsUnlessItsMarkerIsThereInAnyCase) {
  const struct {
    const char* what;
    int schema;
    std::vector<const char*> markers;  // added before the run, in lower case
    std::array<bool, 4> applied;
  } rows[] = {
      {"2007", 2007, {}, {true, true, true, true}},
      {"2008", 2008, {}, {false, true, true, false}},
      {"2011", 2011, {}, {false, false, true, false}},
      {"group 1 alone", 2007,
       {"tOperadores ADD ejerimpmet INTEGER", "tOperadores ADD siglaspaisintra TEXT",
        "tArrendamientos ADD provi INTEGER"},
       {true, false, false, false}},
      {"group 2 alone", 2008, {"tOperadores ADD siglaspaisintra TEXT"}, {false, true, false, false}},
      {"group 4 alone", 2007,
       {"tOperadores ADD impmet REAL", "tOperadores ADD ejerimpmet INTEGER",
        "tOperadores ADD siglaspaisintra TEXT"},
       {false, false, false, true}},
  };
  for (const auto& row : rows) {
    Make(row.schema);
    for (const char* marker : row.markers) test::Exec(mod_, std::string("ALTER TABLE ") + marker);
    test::ShownMessages messages;
    Run(folder_);
    EXPECT_EQ(upgrade::MarcadoresPresentes(mod_), std::vector<bool>(4, true)) << row.what;
    for (size_t g = 0; g < 4; ++g) {
      if (row.applied[g]) {
        EXPECT_EQ(test::Text(mod_, kOutcomes[g].sql), kOutcomes[g].rows) << row.what << ", group " << g + 1;
      }
    }
    if (!row.applied[1]) {
      EXPECT_EQ(test::Text(mod_, "SELECT claverep FROM tOperadores")[0][0], "X") << row.what;
    }
    EXPECT_EQ(test::Text(mod_, "SELECT prova FROM tArrendamientos")[0][0], "0") << row.what;
    EXPECT_TRUE(messages.shown.empty()) << row.what << ": " << messages.shown.front();
    EXPECT_FALSE(fs::exists(copia_)) << row.what << ": the copy goes at the end of a whole run";
    if (row.markers.empty()) {
      EXPECT_EQ(test::SchemaLines(mod_), test::NewSchemaLines()) << row.what;
      EXPECT_TRUE(upgrade::ColumnasQueFaltan(mod_).empty()) << row.what;
    }
  }
}

TEST_F(TraspasoTest, ACurrentDatabaseIsNotCopiedAndOnlyItsProvince99Changes) {
  Make(kCurrentSchema);
  const TextRows operations = test::Text(mod_, "SELECT * FROM tOperadores");
  const std::vector<std::string> schema = test::SchemaLines(mod_);
  test::ShownMessages messages;
  Run((dir_ / "not-a-folder" / "").string());  // a copy tried there would show its message
  EXPECT_TRUE(messages.shown.empty());
  EXPECT_EQ(test::Text(mod_, "SELECT * FROM tOperadores"), operations);
  EXPECT_EQ(test::Text(mod_, "SELECT provi, prova, paiso FROM tArrendamientos"),
            (TextRows{{"0", "0", "FR"}, {"0", "7", "PT"}}));
  EXPECT_EQ(test::SchemaLines(mod_), schema);
}

// A database whose last changes are still in a write-ahead log, as an
// earlier version left its files.
void MakeWithChangesInTheLog(const std::string& mod, const fs::path& elsewhere) {
  fs::create_directories(elsewhere);
  sqlite3* db = nullptr;
  sqlite3_open(mod.c_str(), &db);
  sqlite3_exec(db,
               "PRAGMA journal_mode = WAL; PRAGMA wal_autocheckpoint = 0; INSERT INTO "
               "TDeclarante (dni_cifd, nombred) VALUES ('12345678Z', 'Solo en el registro')",
               nullptr, nullptr, nullptr);
  // The pair copied while the log is live: the file alone lacks the row.
  for (const char* suffix : {"", "-wal"}) {
    fs::copy_file(mod + suffix, elsewhere / (std::string(kDataFileName) + suffix));
  }
  sqlite3_close(db);
  fs::remove(mod);
  for (const char* suffix : {"", "-wal"}) {
    fs::copy_file(elsewhere / (std::string(kDataFileName) + suffix), mod + suffix);
  }
}

TEST_F(TraspasoTest, TheCopyHoldsTheDatabaseAsItWasAndGoesWhenTheRunEnds) {
  Make(2007);
  test::Exec(mod_, "UPDATE tOperadores SET paiso = 1234 WHERE codope = 2");  // group 1 fails
  MakeWithChangesInTheLog(mod_, dir_ / "before");
  const std::string before = (dir_ / "before" / kDataFileName).string();
  // When group 1 fails the copy is there: keep what it holds.
  struct KeepCopy final : CriticalMessageBox {
    std::string from, to;
    std::vector<std::string> shown;
    void Show(const std::string& message) override {
      shown.push_back(message);
      fs::copy_file(from, to, fs::copy_options::overwrite_existing);
    }
  } box;
  box.from = copia_;
  box.to = (dir_ / "kept.db").string();
  SetCriticalMessageBox(&box);
  Run(folder_);
  SetCriticalMessageBox(nullptr);

  EXPECT_EQ(box.shown, std::vector<std::string>{std::string(upgrade::kMensajeGrupo)});
  EXPECT_EQ(upgrade::MarcadoresPresentes(mod_), (std::vector<bool>{false, true, true, true}))
      << "the failed group is undone whole, the others go on";
  EXPECT_EQ(test::Text(mod_, "SELECT paiso FROM tOperadores"), (TextRows{{"0"}, {"1234"}}));
  EXPECT_FALSE(fs::exists(copia_));
  for (const char* sql : {"SELECT * FROM TDeclarante", "SELECT * FROM tOperadores",
                          "SELECT * FROM tArrendamientos"}) {
    EXPECT_EQ(test::Text(box.to, sql), test::Text(before, sql)) << sql;
  }
  EXPECT_EQ(test::Text(box.to, "SELECT nombred FROM TDeclarante"),
            (TextRows{{"Solo en el registro"}}));
  EXPECT_EQ(test::SchemaLines(box.to), test::SchemaLines(before));
}

TEST_F(TraspasoTest, WithoutAPlaceForTheCopyTheColumnsAreStillAdded) {
  Make(2007);
  std::ofstream(dir_ / "file") << "not a folder";
  test::ShownMessages messages;
  Run((dir_ / "file" / "").string());
  EXPECT_EQ(messages.shown, std::vector<std::string>(4, std::string(upgrade::kMensajeCopia)))
      << "each group tries the copy, and goes on";
  EXPECT_EQ(test::SchemaLines(mod_), test::NewSchemaLines());
}

TEST_F(TraspasoTest, DatabasesItCannotWriteAreRefusedAndNothingIsCreated) {
  Make(2007);
  const std::vector<std::string> schema = test::SchemaLines(mod_);
  std::ofstream(dir_ / "notes.db") << "not a database of ours";
  const auto files = Files();

  fs::permissions(mod_, fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
  {
    test::ShownMessages messages;
    EXPECT_RAISES(Run(folder_), errc::kReadOnly);
    EXPECT_TRUE(messages.shown.empty()) << "refused as it opens, before any group";
  }
  fs::permissions(mod_, fs::perms::owner_write, fs::perm_options::add);

  cTraspaso foreign;
  foreign.mdbmod((dir_ / "notes.db").string());
  foreign.mdbPath(folder_);
  EXPECT_RAISES(foreign.Traspaso(), errc::kUnrecognizedFormat);

  // Another process writing: the sqlite3 shell inside a transaction.
  FILE* shell = ::popen(("sqlite3 '" + mod_ + "' > /dev/null").c_str(), "w");
  ASSERT_NE(shell, nullptr);
  std::fputs("BEGIN IMMEDIATE;\nUPDATE tGeneral SET Idioma = 'E';\n", shell);
  std::fflush(shell);
  const auto timeout = data::BusyTimeout();
  data::SetBusyTimeout(std::chrono::milliseconds(100));
  for (int i = 0; i < 500 && test::ErrorOf([&] {
                               data::Workspace ws("probe", "admin", "", 2);
                               data::Database db = ws.OpenDatabase(mod_, false, false, "");
                               data::CheckWritable(db);
                             }) == std::nullopt;
       ++i) {
    ::usleep(10000);
  }
  EXPECT_RAISES(Run(folder_), errc::kLocked);
  data::SetBusyTimeout(timeout);
  ::pclose(shell);

  EXPECT_EQ(Files(), files) << "no copy, nothing beside the files";
  EXPECT_EQ(test::SchemaLines(mod_), schema);
  EXPECT_EQ(test::Text(mod_, "SELECT Idioma FROM tGeneral"), (TextRows{{"C"}}));
}

}  // namespace
}  // namespace zerbal
