// `zerbal upgrade` killed at several moments of its run: every group is
// either as before or whole, the copy holds the database as it was, and a
// second run completes the work as an uninterrupted one does.

#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <iostream>

#include "base/convert.h"
#include "child_session.h"
#include "data/table_defs.h"
#include "upgrade/columnas.h"
#include "upgrade/copia_seguridad.h"
#include "upgrade/upgrade_fixture.h"
#include "zerbal/databases.h"

namespace zerbal {
namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

// The columns each group adds, and whether it turns paiso into text.
const struct {
  const char* table;
  std::vector<const char*> columns;
} kColumnas[4] = {
    {"tOperadores", {"impmet", "impinm"}},
    {"tOperadores", {"ejerimpmet", "impopeT1", "impopeT2", "impopeT3", "impopeT4", "impmobT1",
                     "impmobT2", "impmobT3", "impmobT4"}},
    {"tOperadores",
     {"siglaspaisintra", "nifpaisintra", "opeivacaja", "opeinvsujpas", "operegposadu",
      "impanudevopecaj"}},
    {"tArrendamientos", {"provi"}},
};

void FillMany(const std::string& mod, int operations) {
  const std::string n = std::to_string(operations);
  test::Exec(mod, "WITH RECURSIVE c(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM c WHERE i < " + n +
                      ") INSERT INTO tOperadores (coddeclar, provo, paiso, nifo, razon, claveopo, "
                      "importe, claverep) SELECT i % 40, 20, (i % 3) * 100, 'B' || i, 'Razon ' || "
                      "i, 'A', i * 7, CASE i % 2 WHEN 0 THEN 'X' ELSE 'R' END FROM c");
  test::Exec(mod, "WITH RECURSIVE c(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM c WHERE i < " + n +
                      " / 10) INSERT INTO tArrendamientos (coddeclar, prova, paiso, nifa) SELECT "
                      "i % 40, CASE i % 4 WHEN 0 THEN 99 ELSE i % 50 END, 0, 'C' || i FROM c");
}

// Every row of both tables the upgrade changes.
std::vector<test::TextRows> Contents(const std::string& mod) {
  return {test::Text(mod, "SELECT * FROM tOperadores ORDER BY codope"),
          test::Text(mod, "SELECT * FROM tArrendamientos ORDER BY codarr")};
}

// Checks that each group is whole or absent; says how many are there.
int GroupsThere(const std::string& mod, const std::string& when) {
  const std::vector<bool> markers = upgrade::MarcadoresPresentes(mod);
  data::Workspace workspace("test", "admin", "", 2);
  const data::Database db = workspace.OpenDatabase(mod, false, false, "");
  int there = 0;
  for (size_t g = 0; g < 4; ++g) {
    const data::TableDef table = data::TableDefs(db).Item(kColumnas[g].table);
    for (const char* column : kColumnas[g].columns) {
      const bool has = std::any_of(table.Fields().begin(), table.Fields().end(),
                                   [&](const data::FieldDef& f) { return UCase(f.name) == UCase(column); });
      EXPECT_EQ(has, markers[g]) << when << ": group " << g + 1 << ", " << column;
    }
    if (g != 1 && g != 2) {
      EXPECT_EQ(table.Field("paiso").type == data::kFieldText, markers[g]) << when << ": group " << g + 1;
    }
    there += markers[g];
  }
  return there;
}

TEST(KillTest, AnUpgradeKilledAnywhereIsCompletedByTheNextRun) {
  test::TempDir dir;
  const fs::path pristine = dir / "pristine" / kDataFileName;
  CreateDatabases(pristine.parent_path(), false, 2007);
  FillMany(pristine.string(), 12000);
  const std::vector<test::TextRows> before = Contents(pristine.string());

  const fs::path whole = dir / "whole";
  fs::create_directories(whole);
  fs::copy_file(pristine, whole / kDataFileName);
  const Clock::time_point start = Clock::now();
  ASSERT_EQ(test::ToolProcess({"upgrade", "--dir", whole.string()}).Wait(), 0);
  const auto duration = Clock::now() - start;
  const std::vector<test::TextRows> after = Contents((whole / kDataFileName).string());

  int interrupted = 0;
  for (int tenth : {1, 3, 5, 6, 7, 8, 9}) {
    const fs::path run = dir / ("run" + std::to_string(tenth));
    const std::string mod = (run / kDataFileName).string();
    const std::string copia = (run / upgrade::kCopiaSeguridad).string();
    const std::string when = "killed at " + std::to_string(tenth) + "/10";
    fs::create_directories(run);
    fs::copy_file(pristine, mod);
    {
      test::ToolProcess child({"upgrade", "--dir", run.string()});
      ::usleep(static_cast<useconds_t>(
          std::chrono::duration_cast<std::chrono::microseconds>(duration * tenth / 10).count()));
      child.Kill();
    }
    const int there = GroupsThere(mod, when);
    interrupted += there < 4 || fs::exists(copia);
    // Changed and not yet complete (the copy goes last): the copy is there.
    EXPECT_TRUE(there == 0 || there == 4 || fs::exists(copia))
        << when << ": a changed database has its copy";
    if (fs::exists(copia)) {
      EXPECT_EQ(Contents(copia), before) << when << ": the copy is the database before the run";
    }
    std::cout << when << ": " << there << " groups there"
              << (fs::exists(copia) ? ", copy kept" : "") << "\n";

    ASSERT_EQ(test::ToolProcess({"upgrade", "--dir", run.string()}).Wait(), 0) << when;
    EXPECT_EQ(Contents(mod), after) << when;
    EXPECT_EQ(test::SchemaLines(mod), test::NewSchemaLines()) << when;
    EXPECT_FALSE(fs::exists(copia)) << when;
  }
  EXPECT_GT(interrupted, 0) << "no kill landed inside a run";
}

}  // namespace
}  // namespace zerbal
