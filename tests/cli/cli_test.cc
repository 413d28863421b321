#include <sstream>

#include "base/convert.h"
#include "cli/commands.h"
#include "testutil.h"

namespace zerbal::cli {
namespace {

struct Result {
  int status;
  std::string out;
  std::string err;
};

template <typename Command>
Result Call(Command command, const Args& args) {
  std::ostringstream out, err;
  const int status = command(args, out, err);
  return {status, out.str(), err.str()};
}

TEST(CliTest, InitCreatesBothFilesAndRefusesToOverwrite) {
  test::TempDir dir;
  const std::string folder = (dir / "new").string();
  Result first = Call(RunInit, {folder});
  EXPECT_EQ(first.status, 0) << first.err;
  EXPECT_NE(first.out.find("347mod.db"), std::string::npos);
  EXPECT_NE(first.out.find("347lec.db"), std::string::npos);

  Result again = Call(RunInit, {folder});
  EXPECT_EQ(again.status, 1);
  EXPECT_NE(again.err.find("File already exists"), std::string::npos) << again.err;
  EXPECT_NE(again.err.find("(error 58)"), std::string::npos) << again.err;
  EXPECT_EQ(Call(RunInit, {folder, "--force"}).status, 0);

  EXPECT_EQ(Call(RunInit, {}).status, 2);
  EXPECT_EQ(Call(RunInit, {folder, "--bogus"}).status, 2);
  EXPECT_EQ(Call(RunInit, {"a", "b"}).status, 2);
  Result help = Call(RunInit, {"--help"});
  EXPECT_EQ(help.status, 0);
  EXPECT_NE(help.out.find("usage: zerbal init"), std::string::npos);
}

TEST(CliTest, TheDemoLeavesExportableYearsAndWillNotReuseAFolder) {
  test::TempDir dir;
  Result run = Call(RunDemo, {dir.path().string()});
  EXPECT_EQ(run.status, 0) << run.err;
  for (const char* step : {"Saved the presenter: code 1", "codpostal   \"5\"",
                           "Found by NIF B20456786: code 1", "finding it again gives 0"}) {
    EXPECT_NE(run.out.find(step), std::string::npos) << step << "\n" << run.out;
  }
  const auto years = test::Rows((dir / "347mod.db").string(),
                                "SELECT DISTINCT ejercicio, moneda FROM TDeclaraciones");
  EXPECT_EQ(years.size(), 3u) << "2012, 2014 and 2015 of the declarant that stays";
  for (const auto& row : years) {
    const std::string year = CStr(row[0]);
    Result exported = Call(RunExport, {"--dir", dir.path().string(), "--year", year, "--currency",
                                       CStr(row[1]), "--out", (dir / "out.txt").string(),
                                       "--declarants", (dir / "dtes.txt").string()});
    EXPECT_EQ(exported.status, 0) << year << ": " << exported.err;
  }
  Result again = Call(RunDemo, {dir.path().string()});
  EXPECT_EQ(again.status, 1);
  EXPECT_NE(again.err.find("error 58"), std::string::npos) << again.err;
  EXPECT_EQ(Call(RunDemo, {"a", "b"}).status, 2);
}

}  // namespace
}  // namespace zerbal::cli
