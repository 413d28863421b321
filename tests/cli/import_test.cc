// zerbal import end to end: the round trip of the demo's year, the report
// and its exit statuses, line ends and encodings, input that is not a
// declaration file, a database that stops accepting writes, and the table
// of error texts.

#include <fstream>
#include <nlohmann/json.hpp>
#include <set>
#include <sstream>

#include "base/convert.h"
#include "base/text.h"
#include "cli/commands.h"
#include "cli/demo_data.h"
#include "cli/export_file.h"
#include "cli/import_file.h"
#include "cli/import_texts.h"
#include "data/buffers.h"
#include "demo_year.h"
#include "import/errores.h"
#include "import/lineas.h"
#include "testutil.h"
#include "zerbal/databases.h"
#include "zerbal/presentador.h"

namespace zerbal::cli {
namespace {

namespace fs = std::filesystem;

void Write(const fs::path& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

struct Result {
  int status;
  std::string out, err;
};

Result Import(Args args) {
  std::ostringstream out, err;
  const int status = RunImport(args, out, err);
  return {status, out.str(), err.str()};
}

void SavePresenter(const fs::path& data) {
  cPresentador p;
  p.mdbmod(data.string());
  p.GuardarPresentador(SamplePresenter());
}

fs::path Export(const fs::path& data, const fs::path& out, int32_t year = 2014,
               const std::string& currency = "E") {
  ExportOptions o;
  o.data = data;
  o.year = year;
  o.currency = currency;
  o.out = out;
  ExportYear(o);
  return out;
}

// The file's lines without their CR LF, positions 9-10 of records 1 to 3
// (the declarant's province, which its record does not carry) cleared.
std::vector<std::string> Comparable(const std::string& file) {
  std::vector<std::string> lines;
  std::istringstream in(file);
  for (std::string line; std::getline(in, line);) {
    line.pop_back();
    if (line[0] != '0') line.replace(8, 2, "..");
    lines.push_back(line);
  }
  return lines;
}

// A file of each period, 2006 from a declaration in pesetas (its file is in
// euros, and so is the declaration the import makes of it).
TEST(ImportFileTest, AYearOfEachPeriodComesBackAsItWasExportedBarWhatTheImportRefuses) {
  const struct {
    int32_t year;
    const char* currency;
  } rows[] = {{2014, "E"}, {2012, "E"}, {2009, "E"}, {2006, "P"}};
  for (const auto& row : rows) {
    const std::string y = std::to_string(row.year);
    test::TempDir dir;
    const DatabasePaths a = CreateDatabases(dir / "a");
    test::FillDemoYear(a.data.string(), row.year, true, row.currency);
    const fs::path file = Export(a.data, dir / "347.txt", row.year, row.currency);
    const DatabasePaths b = CreateDatabases(dir / "b");
    SavePresenter(b.data);

    const Result run = Import({"--dir", (dir / "b").string(), "--json", file.string()});
    EXPECT_EQ(run.status, 3) << y << run.err;
    std::istringstream json(run.out);
    std::vector<std::string> lines;
    std::istringstream content(test::Slurp(file));
    for (std::string line; std::getline(content, line);) lines.push_back(Windows1252ToUtf8(line));
    int refused = 0;
    for (std::string object; std::getline(json, object);) {
      const nlohmann::json outcome = nlohmann::json::parse(object);
      if (outcome.contains("summary")) break;
      if (outcome["outcome"] != "refused") continue;
      // Refused only for a character outside the table, as the checks say.
      ++refused;
      const std::string& line = lines[outcome["line"].get<int>() - 1];
      ASSERT_EQ(outcome["errors"][0]["number"], 47) << y << line;
      // What the import refused is taken out of the original to compare.
      const std::string razon = General::SustituirComilla(Trim(Mid(line, 30, 40)));
      test::Exec(a.data, "DELETE FROM tOperadores WHERE razon = '" + razon + "'");
    }
    EXPECT_EQ(refused, 1) << y << ": Lumière's è is not in the table of allowed characters";

    const std::string expected =
        test::Slurp(Export(a.data, dir / "expected.txt", row.year, row.currency));
    const std::string again = test::Slurp(Export(b.data, dir / "again.txt", row.year));
    EXPECT_EQ(Comparable(again), Comparable(expected)) << y;
    EXPECT_NE(expected, again) << y << ": the declarant's province is not carried over";
  }
}

class ImportCommandTest : public test::DatabaseTest {
 protected:
  std::string Dir() const { return dir_.path().string(); }
  std::string File(const std::string& name, const std::string& bytes) {
    Write(dir_ / name, bytes);
    return (dir_ / name).string();
  }
  int64_t Count(const std::string& table) {
    return test::Rows(mod_, "SELECT COUNT(*) FROM " + table)[0][0].AsLong();
  }
};

// Records of a 2014 file as they stand in it, in Windows-1252.
std::string DeclarantRecord() { return Utf8ToWindows1252(test::LineaDeclarante()); }
std::string OperationRecord(const std::string& name = "Goikoetxea, Ane") {
  return Utf8ToWindows1252(
      test::Set(test::LineaDeclarado(), fileformat::kCamposReg2_2014, "razon", name));
}

TEST_F(ImportCommandTest, ReportsEachLineNotStoredAndSumsUp) {
  const std::string file = File("f.txt", DeclarantRecord() + "\r\n" + OperationRecord() +
                                             "\r\n" + OperationRecord("Lumière") +
                                             "\r\n" + "9 unknown\r\n");
  const Result es = Import({"--dir", Dir(), "--years", "2002-2014", file});
  EXPECT_EQ(es.status, 3) << es.err;
  for (const char* text : {"línea 3, registro 2: no grabada\n  47  Carácter no permitido: \"è\"\n",
                           "línea 4, registro 9: tipo de registro desconocido\n",
                           "declarantes: 1 nuevos, 0 reescritos, 0 sin cambios",
                           "operaciones grabadas: 1", "líneas no grabadas: 2", "error 47: 1"}) {
    EXPECT_NE(es.out.find(text), std::string::npos) << text << "\n" << es.out;
  }
  EXPECT_EQ(es.out.find("línea 1"), std::string::npos) << "stored lines are not listed";

  test::Exec(mod_, "DELETE FROM TDeclaraciones");
  const std::string clean = File("g.txt", DeclarantRecord() + "\n" + OperationRecord());
  EXPECT_EQ(Import({"--dir", Dir(), "--years", "2002-2014", clean}).status, 0);
  const Result year = Import({"--dir", Dir(), "--years", "2002-2014", clean});
  EXPECT_NE(year.out.find("31  El declarante ya tiene declaración de ese ejercicio: \"2014\""),
            std::string::npos)
      << year.out;
  EXPECT_NE(year.out.find("línea 2, registro 2: omitida: su declaración fue rechazada"),
            std::string::npos)
      << year.out;
}

TEST_F(ImportCommandTest, UsageAndFailuresToRun) {
  const std::string file = File("f.txt", DeclarantRecord() + "\n" + OperationRecord() + "\n");
  const struct {
    Args args;
    int status;
    const char* says;
  } rows[] = {
      {{file}, 2, "usage"},
      {{"--dir", Dir()}, 2, "usage"},
      {{"--dir", Dir(), "--only", "rentals", file}, 2, "usage"},
      {{"--dir", Dir(), "--years", "2014-2002", file}, 2, "usage"},
      {{"--dir", Dir(), "--lang", "fr", file}, 2, "usage"},
      {{"--dir", Dir(), file, file}, 2, "usage"},
      {{"--dir", (dir_ / "none").string(), file}, 1, "there is no data database"},
      {{"--dir", Dir(), (dir_ / "missing.txt").string()}, 1, "cannot read"},
      {{"--dir", Dir(), "--declaration", "99", file}, 1, "no declaration 99"},
  };
  for (const auto& row : rows) {
    const Result run = Import(row.args);
    EXPECT_EQ(run.status, row.status) << row.args.back();
    EXPECT_NE(run.err.find(row.says), std::string::npos) << run.err;
  }
  EXPECT_EQ(Import({"--help"}).status, 0);

  fs::permissions(mod_, fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
  const Result read_only = Import({"--dir", Dir(), "--years", "2002-2014", file});
  fs::permissions(mod_, fs::perms::owner_write, fs::perm_options::add);
  EXPECT_EQ(read_only.status, 1);
  EXPECT_NE(read_only.err.find("stopped at line 1: "), std::string::npos) << read_only.err;
  EXPECT_NE(read_only.err.find("(error 3027); 0 lines stored before it"), std::string::npos)
      << read_only.err;
}

TEST_F(ImportCommandTest, ADatabaseThatStopsAcceptingWritesKeepsWhatWasStored) {
  ImportOptions o;
  o.data = mod_;
  o.lookup = lec_;
  o.year_max = 2014;
  o.file = File("f.txt", DeclarantRecord() + "\n" + OperationRecord() + "\n" +
                             Utf8ToWindows1252(test::LineaArrendamiento()) + "\n");
  try {
    ImportFile(o, [&](const LineOutcome& line) {
      if (line.line == 2) fs::permissions(mod_, fs::perms::owner_read);
    });
    ADD_FAILURE() << "the import went on";
  } catch (const ImportStopped& stopped) {
    EXPECT_EQ(stopped.line, 3);
    EXPECT_EQ(stopped.summary.stored, 2);
    EXPECT_NE(std::string(stopped.what()).find("3027"), std::string::npos) << stopped.what();
  }
  fs::permissions(mod_, fs::perms::owner_write, fs::perm_options::add);
  EXPECT_EQ(Count("tOperadores"), 1);
  EXPECT_EQ(Count("TDeclaraciones"), 1);
}

// A 2012 file in the state agency's layout: a declarant, an operation, a
// premises, then the operation with "d" at 76 and without its key.
std::string StateFile() {
  std::vector<std::string> lines = test::LineasEstatales(2012);
  lines.push_back(test::Poner(lines[1], 76, "d"));
  lines.push_back(test::Poner(lines[1], 82, " "));
  std::string file;
  for (const std::string& line : lines) file += Utf8ToWindows1252(line) + "\r\n";
  return file;
}

// Each file through the command into a database without declarations: the
// status, what the report or the error says, and the operations stored.
TEST_F(ImportCommandTest, LineEndsEncodingsLayoutsAndInputThatIsNoDeclarationFile) {
  const std::string d = DeclarantRecord(), o = OperationRecord();
  std::string binary;
  for (int k = 0; k < 4096; ++k) binary += static_cast<char>((k * 7919) % 256);
  const struct {
    const char* name;
    std::string bytes;
    Args extra;
    int status;
    std::vector<const char*> says;
    int64_t operations;
  } rows[] = {
      {"CR LF", d + "\r\n" + o + "\r\n", {}, 0, {}, 1},
      {"LF, no final end", d + "\n" + o, {}, 0, {}, 1},
      {"CR", d + "\r" + o + "\r", {}, 0, {}, 1},
      {"UTF-8", Windows1252ToUtf8(d) + "\n" + o, {"--encoding", "utf-8"}, 0, {}, 1},
      {"UTF-8 read as Windows-1252: Ã is refused", Windows1252ToUtf8(d) + "\n" + o, {}, 3, {}, 0},
      {"not UTF-8", d + "\n" + o, {"--encoding", "utf-8"}, 3, {}, 0},
      {"in Basque", d + "\n" + o + "\n" + OperationRecord("Lumière"), {"--lang", "eu"}, 3,
       {"3. lerroa, 2 erregistroa: ez da gorde\n  47  Karaktere debekatua: \"è\"",
        "gorde gabeko lerroak: 1"}, 1},
      {"bytes of every value", binary, {}, 3, {"tipo de registro desconocido"}, 0},
      {"NUL and tab", std::string("2347\0\t", 6) + "\n" + std::string(1, '\0'), {}, 3,
       {"línea 1, registro 2: omitida: no hay un declarante antes"}, 0},
      {"a line of 100,000 characters", std::string(100000, '1') + "\n" + o, {}, 3,
       {"0  NIF del declarante no válido: \"111111111\""}, 0},
      {"every error of a line, one under another",
       d + "\n" + std::string(o).replace(75, 16, "N+-ABCDEFGHIJKLM").replace(128, 16, "X-+ABCDEFGHIJKLM"),
       {}, 3, {"36  Importe con caracteres no numéricos: \"N+-ABCDEFGHIJKLM\"\n"
               "  56  Signo del importe no válido: \"X-+ABCDEFGHIJKLM\""}, 0},
      {"a state file without --state", StateFile(), {}, 1,
       {"looks like a file in the state agency's layout", "--state imports it"}, 0},
      {"a treasury file with --state", d + "\n" + o, {"--state"}, 1,
       {"does not look like a file in the state agency's layout"}, 0},
      {"a state file with --state", StateFile(), {"--state"}, 3,
       {"línea 4, registro 2: tipo de registro desconocido\n",
        "línea 5, registro 2: no grabada\n  17  Clave de operación en blanco\n",
        "operaciones grabadas: 1", "arrendamientos grabados: 1", "líneas no grabadas: 2"}, 1},
  };
  for (const auto& row : rows) {
    test::Exec(mod_, "DELETE FROM TDeclaraciones; DELETE FROM tOperadores; DELETE FROM tArrendamientos");
    Args args = {"--dir", Dir(), "--years", "2002-2014"};
    args.insert(args.end(), row.extra.begin(), row.extra.end());
    args.push_back(File("x.txt", row.bytes));
    const Result run = Import(args);
    EXPECT_EQ(run.status, row.status) << row.name << "\n" << run.out << run.err;
    for (const char* text : row.says) {
      EXPECT_NE((run.out + run.err).find(text), std::string::npos)
          << row.name << ": " << text << "\n" << run.out << run.err;
    }
    EXPECT_EQ(Count("tOperadores"), row.operations) << row.name;
  }
  EXPECT_EQ(Left(test::Rows(mod_, "SELECT nombred FROM TDeclarante")[0][0].AsString(), 21),
            "Iturri Ibáñez, Miren ");

  // The state file's lines are converted when they go to an existing declaration too.
  const std::string code = CStr(test::Rows(mod_, "SELECT coddecla FROM TDeclaraciones")[0][0]);
  EXPECT_EQ(Import({"--dir", Dir(), "--state", "--declaration", code, "--only", "rentals",
                    File("x.txt", StateFile())}).status,
            3);
  EXPECT_EQ(Count("tArrendamientos"), 2) << "added to the existing declaration";
  EXPECT_EQ(Count("tOperadores"), 1) << "operations left out";
  EXPECT_EQ(Count("TDeclaraciones"), 1) << "the declarant line creates nothing";
}

TEST(ImportFileTest, WhatLooksLikeTheStateLayout) {
  test::TempDir dir;
  const std::string presenter = "0347201420B20456786", declarant = test::LineaDeclarante();
  const std::string operation = test::LineaDeclarado();
  const std::string d = test::Poner(operation, 76, "D"), i = test::Poner(operation, 76, "i");
  const struct {
    const char* name;
    std::vector<std::string> lines;
    FileLayout layout;
  } rows[] = {
      {"empty", {}, FileLayout::kEither},
      {"declarants alone: nothing to judge by", {declarant}, FileLayout::kEither},
      {"a treasury file", {presenter, declarant, operation}, FileLayout::kTreasury},
      {"no presenter record", {declarant, operation}, FileLayout::kTreasury},
      {"D or I at 76, either case", {declarant, d, i}, FileLayout::kState},
      {"a presenter record first", {presenter, declarant, d}, FileLayout::kTreasury},
      {"half the type-2 lines are not most", {declarant, d, operation}, FileLayout::kTreasury},
  };
  for (const auto& row : rows) {
    std::string bytes;
    for (const std::string& line : row.lines) bytes += Utf8ToWindows1252(line) + "\r\n";
    Write(dir / "f.txt", bytes);
    EXPECT_EQ(LayoutOf(dir / "f.txt", false), row.layout) << row.name;
  }
}

TEST(ImportTextsTest, EveryNumberTheChecksRecordHasItsTextInBothLanguages) {
  std::set<int32_t> numbers(std::begin(Importacion::kNumerosError),
                            std::end(Importacion::kNumerosError));
  std::set<int32_t> texts;
  for (const ErrorText& row : ErrorTexts()) {
    EXPECT_TRUE(texts.insert(row.number).second) << row.number << " twice";
    EXPECT_TRUE(numbers.count(row.number)) << row.number << " is no error of the checks";
    EXPECT_FALSE(row.es.empty() || row.eu.empty()) << row.number;
  }
  EXPECT_EQ(texts, numbers);
}

}  // namespace
}  // namespace zerbal::cli
