// A small year exported end to end, as `zerbal export` writes it.

#include <fstream>
#include <sstream>

#include "base/text.h"
#include "cli/commands.h"
#include "cli/demo_data.h"
#include "cli/export_file.h"
#include "demo_year.h"
#include "testutil.h"
#include "zerbal/presentador.h"

namespace zerbal::cli {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> Lines(const fs::path& path) {
  std::vector<std::string> lines;
  const std::string all = test::Slurp(path);
  for (size_t pos = 0; pos < all.size();) {
    const size_t end = all.find("\r\n", pos);
    EXPECT_NE(end, std::string::npos) << "every line ends in CR LF";
    if (end == std::string::npos) break;
    lines.push_back(all.substr(pos, end - pos));
    pos = end + 2;
  }
  return lines;
}

class ExportYearTest : public test::DatabaseTest {
 protected:
  void Fill(int32_t year, bool presenter) { test::FillDemoYear(mod_, year, presenter); }
  ExportOptions Options(int32_t year) {
    ExportOptions o;
    o.data = mod_;
    o.year = year;
    o.out = dir_ / "out.txt";
    return o;
  }
};

TEST_F(ExportYearTest, RecordZeroThenEachDeclarantInIdentifierOrder) {
  Fill(2014, true);
  ExportOptions options = Options(2014);
  options.declarants = dir_ / "dtes.txt";
  const ExportSummary summary = ExportYear(options);
  const std::vector<std::string> lines = Lines(options.out);
  ASSERT_EQ(lines.size(), 10u) << "1 + (1 + 3 + 1) + (1 + 2 + 1)";
  EXPECT_EQ(summary.records, 10);
  EXPECT_EQ(summary.declarants, 2);
  std::string types;
  for (const std::string& line : lines) {
    types += line[0];
    EXPECT_EQ(line.size(), 500u) << "one byte per character in Windows-1252: " << line.substr(0, 30);
  }
  EXPECT_EQ(types, "0122231223");
  EXPECT_EQ(lines[1].substr(10, 9), "12345678Z") << "12345678Z sorts before B64717838";
  EXPECT_EQ(lines[6].substr(10, 9), "B64717838");
  EXPECT_EQ(lines[0].substr(113, 14), "00002000000007") << "2 declarants, 5 + 2 records";
  EXPECT_EQ(lines[1].substr(26, 6), "Ib\xE1\xF1""ez") << "Windows-1252 by default";
  EXPECT_EQ(Lines(*options.declarants).size(), 2u);

  options.utf8 = true;
  ExportYear(options);
  EXPECT_EQ(Lines(options.out)[1].substr(26, 8), "Ibáñez");
}

TEST_F(ExportYearTest, EarlierYearsUseTheirOwnRecordLength) {
  Fill(2009, true);
  const std::vector<std::string> lines = (ExportYear(Options(2009)), Lines(dir_ / "out.txt"));
  ASSERT_EQ(lines.size(), 9u) << "the negative operation has no place before 2011";
  for (const std::string& line : lines) EXPECT_EQ(line.size(), 180u) << line[0];
}

TEST_F(ExportYearTest, FailuresSayWhatIsMissingAndLeaveNoFile) {
  EXPECT_THROW(ExportYear(Options(2014)), ExportFailure) << "no declarations";
  Fill(2014, false);
  try {
    ExportYear(Options(2014));
    ADD_FAILURE() << "no presenter";
  } catch (const ExportFailure& e) {
    EXPECT_NE(std::string(e.what()).find("presenter"), std::string::npos) << e.what();
  }
  cPresentador p;
  p.mdbmod(mod_);
  p.GuardarPresentador(SamplePresenter());
  const struct {
    const char* rule;
    const char* sql;
    const char* undo;
    const char* refusal;
  } misfits[] = {
      {"a 9-digit telephone in the presenter's 7 positions",
       "UPDATE TPresentador SET telefono = '943123456'", "UPDATE TPresentador SET telefono = ''",
       "record 0 (the presenter) cannot be written: telefono takes 7 characters (positions 107 "
       "to 113), and its value \"943123456\" has 9"},
      {"a negative cash amount", "UPDATE tOperadores SET impmet = -5 WHERE codope = 2",
       "UPDATE tOperadores SET impmet = 0",
       "record 2 of declarant 12345678Z, row 2 cannot be written: impmet takes 15 characters "
       "(positions 94 to 108), and its value \"-000000000000005\" has 16"},
  };
  for (const auto& row : misfits) {
    test::Exec(mod_, row.sql);
    try {
      ExportYear(Options(2014));
      ADD_FAILURE() << row.rule;
    } catch (const ExportFailure& e) {
      EXPECT_EQ(std::string(e.what()), row.refusal) << row.rule;
    }
    test::Exec(mod_, row.undo);
  }
  for (const auto& entry : fs::directory_iterator(dir_.path())) {
    EXPECT_EQ(entry.path().filename().string().find("out"), std::string::npos)
        << entry.path() << ": a failed export leaves nothing behind";
  }
  ExportYear(Options(2014));
}

TEST_F(ExportYearTest, NeitherOutputMayBeADatabaseOrTheOtherOutput) {
  Fill(2014, true);
  const std::string before = test::Slurp(mod_);
  const struct {
    const char* rule;
    fs::path out;
    std::optional<fs::path> declarants;
  } rows[] = {
      {"--out the data database", mod_, {}},
      {"--declarants the data database", dir_ / "out.txt", mod_},
      {"both the same new file", dir_ / "out.txt", dir_.path() / "." / "out.txt"},
  };
  for (const auto& row : rows) {
    ExportOptions options = Options(2014);
    options.out = row.out;
    options.declarants = row.declarants;
    EXPECT_THROW(ExportYear(options), ExportFailure) << row.rule;
    EXPECT_EQ(test::Slurp(mod_), before) << row.rule;
    EXPECT_FALSE(fs::exists(dir_ / "out.txt")) << row.rule;
  }
  EXPECT_EQ(test::Rows(mod_, "SELECT coddecla FROM TDeclaraciones").size(), 2u);
}

TEST_F(ExportYearTest, TheCommandReadsItsOptions) {
  Fill(2014, true);
  const std::string out = (dir_ / "cmd.txt").string();
  std::ostringstream o, e;
  EXPECT_EQ(RunExport({"--dir", dir_.path().string(), "--year", "2014", "--out", out}, o, e), 0)
      << e.str();
  EXPECT_EQ(o.str(), "Exported 2 declarants, 10 records to " + out + "\n");
  const struct {
    Args args;
    int status;
  } rows[] = {
      {{"--dir", dir_.path().string(), "--year", "2014"}, 2},
      {{"--dir", dir_.path().string(), "--year", "20x4", "--out", out}, 2},
      {{"--dir", dir_.path().string(), "--year", "2014", "--out", out, "--currency", "D"}, 2},
      {{"--dir", dir_.path().string(), "--year", "2014", "--out", out, "--encoding", "latin9"}, 2},
      {{"--dir", dir_.path().string(), "--year", "2014", "--out", out, "--year", "2014"}, 2},
      {{"--dir", dir_.path().string(), "--year", "2013", "--out", out}, 1},
      {{"--dir", (dir_ / "none").string(), "--year", "2014", "--out", out}, 1},
      {{"--dir", dir_.path().string(), "--year", "2014", "--out", out, "--currency", "p"}, 1},
  };
  for (const auto& row : rows) {
    std::ostringstream ignored_out, err;
    EXPECT_EQ(RunExport(row.args, ignored_out, err), row.status) << err.str();
    if (row.status == 1) {
      EXPECT_NE(err.str().find("zerbal: "), std::string::npos);
    }
  }
}

}  // namespace
}  // namespace zerbal::cli
