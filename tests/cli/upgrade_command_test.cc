// zerbal upgrade and init --schema as a person runs them, and the refusal of
// an earlier year's database by the other commands.

#include <fstream>
#include <sstream>

#include "cli/commands.h"
#include "testutil.h"

namespace zerbal::cli {
namespace {

struct Case {
  const char* what;
  int schema;  // of the databases made first in DIR: a year, 0 the current one, -1 none
  std::vector<std::string> args;  // "DIR" stands for the folder
  int status;
  std::vector<const char*> out, err;  // texts each must hold
};

TEST(UpgradeCommandTest, SaysWhatItDidAndExitsZeroOnlyOnAWholeUpgrade) {
  const Case cases[] = {
      {"2011", 2011, {"upgrade", "--dir", "DIR"}, 0,
       {"Group 1 (IMPMET in toperadores): skipped", "Group 3 (SIGLASPAISINTRA in toperadores): applied",
        "has every current column"},
       {}},
      {"current", 0, {"upgrade", "--dir", "DIR"}, 0,
       {"Group 2 (EJERIMPMET in toperadores): skipped", "Group 4 (PROVI in tarrendamientos): skipped"},
       {}},
      {"no place for the copy", 2007, {"upgrade", "--dir", "DIR", "--backup-dir", "DIR/file"}, 1,
       {"Group 1 (IMPMET in toperadores): applied", "has every current column"},
       {"Se ha producido un error en la copia de seguridad", "no backup was taken"}},
      {"no database", -1, {"upgrade", "--dir", "DIR"}, 1, {}, {"(error 3024)"}},
      {"export of 2007", 2007, {"export", "--dir", "DIR", "--year", "2007", "--out", "DIR/x"}, 1,
       {}, {"earlier year's program", "run 'zerbal upgrade --dir "}},
      {"import into 2011", 2011, {"import", "--dir", "DIR", "DIR/file"}, 1, {},
       {"earlier year's program", "run 'zerbal upgrade --dir "}},
      {"init of 2008", -1, {"init", "DIR", "--schema", "2008"}, 0, {"(data database of 2008)"}, {}},
      {"init of 2009", -1, {"init", "DIR", "--schema", "2009"}, 1, {}, {"(error 5)"}},
      {"init of no year", -1, {"init", "DIR", "--schema", "x"}, 2, {}, {"usage: zerbal init"}},
      {"no folder", -1, {"upgrade", "--backup-dir", "DIR"}, 2, {}, {"usage: zerbal upgrade"}},
  };
  for (const Case& c : cases) {
    test::TempDir dir;
    std::ofstream(dir / "file") << "not a folder";
    if (c.schema >= 0) {
      Args init{dir.path().string()};
      if (c.schema > 0) init.insert(init.end(), {"--schema", std::to_string(c.schema)});
      std::ostringstream ignored;
      ASSERT_EQ(RunInit(init, ignored, ignored), 0) << c.what;
    }
    Args args(c.args.begin() + 1, c.args.end());
    for (std::string& a : args) {
      if (a.starts_with("DIR")) a = dir.path().string() + a.substr(3);
    }
    std::ostringstream out, err;
    const int status = c.args[0] == "upgrade" ? RunUpgrade(args, out, err)
                       : c.args[0] == "init"  ? RunInit(args, out, err)
                       : c.args[0] == "import" ? RunImport(args, out, err)
                                              : RunExport(args, out, err);
    EXPECT_EQ(status, c.status) << c.what << "\n" << out.str() << err.str();
    for (const char* text : c.out) {
      EXPECT_NE(out.str().find(text), std::string::npos) << c.what << ": " << text << "\n" << out.str();
    }
    for (const char* text : c.err) {
      EXPECT_NE(err.str().find(text), std::string::npos) << c.what << ": " << text << "\n" << err.str();
    }
  }
}

}  // namespace
}  // namespace zerbal::cli
