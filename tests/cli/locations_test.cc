#include "cli/locations.h"

#include <fstream>
#include <sstream>

#include "cli/commands.h"
#include "testutil.h"

namespace zerbal::cli {
namespace {

namespace fs = std::filesystem;

TEST(LocationsTest, NamedDatabasesWinOverTheFolderAndTheLookupFollowsTheData) {
  test::TempDir dir;
  const std::string d = dir.path().string();
  const std::string uri = "postgresql:///office?host=/run/pg";
  struct Case {
    std::vector<std::pair<std::string, std::string>> given;
    std::optional<Locations> expected;
  };
  const Case cases[] = {
      {{{"--dir", "f"}}, Locations{"f/347mod.db", "f/347lec.db"}},
      {{{"--dir", "f"}, {"--data", "x.db"}}, Locations{"x.db", "f/347lec.db"}},
      {{{"--data", "a/x.db"}}, Locations{"a/x.db", "a/347lec.db"}},
      {{{"--data", d}}, Locations{d + "/347mod.db", d + "/347lec.db"}},  // an existing folder
      {{{"--data", uri}, {"--lookup", d}}, Locations{uri, d + "/347lec.db"}},
      {{{"--data", uri}, {"--lookup", uri}}, Locations{uri, uri}},
      {{{"--data", uri}}, std::nullopt},  // no lookup database to be told
      {{{"--lookup", "l.db"}}, std::nullopt},
      {{}, std::nullopt},
  };
  for (const Case& c : cases) {
    LocationArgs args;
    for (const auto& [name, value] : c.given) ASSERT_TRUE(args.Take(name, value)) << name;
    const std::optional<Locations> got = args.Resolve();
    ASSERT_EQ(got.has_value(), c.expected.has_value()) << c.given.size();
    if (got) {
      EXPECT_EQ(got->data, c.expected->data);
      EXPECT_EQ(got->lookup, c.expected->lookup);
    }
  }
  LocationArgs twice;
  EXPECT_TRUE(twice.Take("--data", "a.db"));
  EXPECT_FALSE(twice.Take("--data", "b.db"));
  EXPECT_FALSE(twice.Take("--lookup", ""));
  EXPECT_FALSE(twice.Take("--year", "2014"));
}

int Status(int (*command)(const Args&, std::ostream&, std::ostream&), const Args& args,
        std::string* err = nullptr) {
  std::ostringstream out, errors;
  const int status = command(args, out, errors);
  if (err) *err = errors.str();
  return status;
}

TEST(LocationsTest, EveryCommandWorksOnDatabasesNamedOneByOne) {
  test::TempDir dir;
  const std::string data = (dir / "office.db").string();
  const std::string lookup = (dir / "ref" / "reference.db").string();
  fs::create_directory(dir / "ref");
  const Args named = {"--data", data, "--lookup", lookup};

  // The lookup file is there: neither is created.
  std::ofstream(lookup) << "someone's file";
  std::string err;
  EXPECT_EQ(Status(RunInit, named, &err), 1);
  EXPECT_NE(err.find("(error 58)"), std::string::npos) << err;
  EXPECT_FALSE(fs::exists(data));
  Args forced = named;
  forced.push_back("--force");
  ASSERT_EQ(Status(RunInit, forced, &err), 0) << err;

  Args demo = named;
  demo.push_back((dir / "files").string());
  fs::remove(data);
  fs::remove(lookup);
  ASSERT_EQ(Status(RunDemo, demo, &err), 0) << err;
  EXPECT_TRUE(fs::exists(dir / "files" / "347_2014.txt"));
  EXPECT_FALSE(fs::exists(dir / "files" / "347mod.db"));

  Args exported = named;
  exported.insert(exported.end(), {"--year", "2014", "--out", (dir / "out.txt").string()});
  ASSERT_EQ(Status(RunExport, exported, &err), 0) << err;
  EXPECT_EQ(test::Slurp(dir / "out.txt").substr(0, 19), "0347201420B20456786");
  exported.back() = lookup;  // never written over, named as it was
  EXPECT_EQ(Status(RunExport, exported, &err), 1);

  Args upgraded = named;
  EXPECT_EQ(Status(RunUpgrade, upgraded, &err), 0) << err;
  Args imported = named;
  imported.insert(imported.end(), {"--declaration", "1", (dir / "out.txt").string()});
  EXPECT_NE(Status(RunImport, imported, &err), 2) << err;

  std::istringstream in(
      "{\"op\":\"create\",\"class\":\"zerbal.cDatosGenerales\"}\n"
      "{\"op\":\"call\",\"handle\":1,\"name\":\"NumeroDeclarantes\"}\n");
  std::ostringstream out, errors;
  EXPECT_EQ(RunAutomation(named, in, out, errors), 0);
  EXPECT_NE(out.str().find("\"value\":1}"), std::string::npos) << out.str();
}

}  // namespace
}  // namespace zerbal::cli
