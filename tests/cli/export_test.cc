// A small year exported end to end, as `zerbal export` writes it.

#include <fstream>
#include <sstream>

#include "base/text.h"
#include "cli/commands.h"
#include "cli/demo_data.h"
#include "cli/export_file.h"
#include "testutil.h"
#include "zerbal/arrendamiento.h"
#include "zerbal/declaraciones.h"
#include "zerbal/declarado.h"
#include "zerbal/declarante.h"
#include "zerbal/presentador.h"

namespace zerbal::cli {
namespace {

std::vector<std::string> Lines(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  std::stringstream text;
  text << in.rdbuf();
  std::vector<std::string> lines;
  const std::string all = text.str();
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
  // The demo's sample declarants in `year`, and the presenter when asked.
  void Fill(int32_t year, bool presenter) {
    cDeclarante declarante;
    cDeclaraciones declaraciones;
    cDeclarado declarado;
    cArrendamiento arrendamiento;
    for (PathProperties* c : std::initializer_list<PathProperties*>{
             &declarante, &declaraciones, &declarado, &arrendamiento}) {
      c->mdbmod(mod_);
    }
    for (const DemoDeclarant& d : SampleDeclarants()) {
      const int32_t declaration =
          declaraciones.GuardarDeclaracion(year, "E", declarante.GuardarDeclarante(DeclarantBuffer(d)));
      for (const DemoOperation& op : d.operations) {
        if (year < 2011 && op.amount < 0) continue;  // the unsigned layouts have no place for it
        declarado.GuardarDeclarado(OperationBuffer(declaration, year, op));
      }
      for (const DemoRental& r : d.rentals) {
        arrendamiento.GuardarArrendamiento(RentalBuffer(declaration, r));
      }
    }
    if (presenter) {
      cPresentador p;
      p.mdbmod(mod_);
      p.GuardarPresentador(SamplePresenter());
    }
  }
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
  test::Exec(mod_, "UPDATE tOperadores SET impmet = -5 WHERE codope = 2");
  try {
    ExportYear(Options(2014));
    ADD_FAILURE() << "a negative cash amount does not fit its field";
  } catch (const ExportFailure& e) {
    EXPECT_NE(std::string(e.what()).find("501 characters"), std::string::npos) << e.what();
  }
  EXPECT_FALSE(std::filesystem::exists(dir_ / "out.txt"));
  EXPECT_FALSE(std::filesystem::exists(dir_ / "out.txt.tmp"));
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
