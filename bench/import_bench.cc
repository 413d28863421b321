// Lines per second of `zerbal import` end to end (the same code: ImportFile
// over a file on disk, into databases made as `zerbal init` makes them), at
// three sizes of file, against a baseline in the same run: the same rows
// inserted with raw prepared SQLite statements, on a connection of the same
// engine settings, one transaction a row as the import commits them.
//
// The file: 300 declarants with 100,000 operations and 1,000 rentals, three
// times: of 2014 and of 2012 (101,301 lines with record 0), written by the
// export's own record writers of the year, and of 2014 in the state
// agency's layout (101,300 lines, no record 0), imported with --state. The
// smaller sizes are their first lines.

#include <benchmark/benchmark.h>
#include <stdlib.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <vector>

#include "base/text.h"
#include "cli/demo_data.h"
#include "cli/import_file.h"
#include "data/engine.h"
#include "data/pg.h"
#include "fileformat/seleccion.h"
#include "tests/fileformat/campos_estatales.h"
#include "zerbal/databases.h"

namespace zerbal::cli {
namespace {

namespace fs = std::filesystem;

constexpr int kDeclarants = 300;
constexpr int kOperations = 100000;
constexpr int kRentals = 1000;
constexpr const char* kLetters = "TRWAGMYFPDXBNJZSQVHLCKE";

std::string Dni(int number) { return std::to_string(number) + kLetters[number % 23]; }

Variant Buffer(std::initializer_list<Variant> values) {
  Variant b(Array(0, static_cast<int32_t>(values.size()) - 1));
  int32_t i = 0;
  for (const Variant& v : values) b(i++) = v;
  return b;
}

// One row of each kind, as the file carries it and the baseline stores it.
struct Operation {
  std::string nif, name, key;
  int64_t amount;
};
struct Rental {
  std::string nif, name;
  int64_t amount;
};
struct Declarant {
  std::string nif, name;
  std::vector<Operation> operations;
  std::vector<Rental> rentals;
};

std::vector<Declarant> Data() {
  std::vector<Declarant> data(kDeclarants);
  for (int d = 0; d < kDeclarants; ++d) {
    data[d].nif = Dni(10000000 + d);
    data[d].name = "Aitortzailea " + std::to_string(d) + " S.L.";
  }
  for (int k = 0; k < kOperations; ++k) {
    Declarant& d = data[k % kDeclarants];
    const int party = 20000000 + static_cast<int>(d.operations.size());
    d.operations.push_back({Dni(party), "Hirugarrena " + std::to_string(party),
                            "AB"[k % 2] + std::string(), 400000 + 4 * (k % 1000)});
  }
  for (int k = 0; k < kRentals; ++k) {
    data[k % kDeclarants].rentals.push_back({Dni(30000000 + k), "Maizterra " + std::to_string(k),
                                             1200000});
  }
  return data;
}

Variant DeclarantBuffer(const Declarant& d) {
  return Buffer({0, d.nif, d.name, "", "", 0, "", "", "", "", 0, "0", "", 0, "", "", 0, ""});
}

Variant OperationBuffer(const Operation& op) {
  const std::string quarter = std::to_string(op.amount / 4);
  return Buffer({"1", "20", " ", op.nif, op.name, op.key, std::to_string(op.amount), "0", "0", "",
                 "", "", quarter, quarter, quarter, quarter, "0", "0", "0", "0", "0", "", "", "",
                 "", "", "0"});
}

Variant RentalBuffer(const Rental& r) {
  return Buffer({"1", "20", "", r.nif, r.name, std::to_string(r.amount), "Donostia",
                 "9872023VH5797S0001WX", "CL", "Easo", "21", "", "", "", "20"});
}

// Writes a file once, in Windows-1252 with CR LF, as `zerbal export` does.
fs::path MakeFile(const fs::path& dir, const std::vector<Declarant>& data, int32_t year) {
  const fileformat::YearWriters& w = fileformat::WritersFor(year);
  const fs::path file = dir / ("347_" + std::to_string(year) + ".txt");
  std::ofstream out(file, std::ios::binary);
  out << w.GenerarReg0(SamplePresenter(), kDeclarants, kOperations + kRentals, year) << "\r\n";
  for (const Declarant& d : data) {
    const Variant declarant = DeclarantBuffer(d);
    out << Utf8ToWindows1252(w.GenerarReg1(declarant, Variant::Null(), "E", year)) << "\r\n";
    for (const Operation& op : d.operations) {
      out << Utf8ToWindows1252(w.GenerarReg2(year, OperationBuffer(op), declarant, "E"))
          << "\r\n";
    }
    for (const Rental& r : d.rentals) {
      out << Utf8ToWindows1252(w.GenerarReg3(year, RentalBuffer(r), declarant, "E").AsString())
          << "\r\n";
    }
  }
  return file;
}

// The same rows of 2014 in the state agency's layout.
fs::path MakeStateFile(const fs::path& dir, const std::vector<Declarant>& data) {
  const fs::path file = dir / "347_2014_estatal.txt";
  std::ofstream out(file, std::ios::binary);
  std::vector<std::string> unknown;
  const auto line = [&](char record, const std::map<std::string, std::string>& values) {
    out << Utf8ToWindows1252(test::EscribirLineaEstatal(2014, record, values, unknown)) << "\r\n";
  };
  for (const Declarant& d : data) {
    line('1', {{"dni_cifd", d.nif}, {"nombred", d.name}});
    for (const Operation& op : d.operations) {
      const std::string quarter = std::to_string(op.amount / 4);
      line('D', {{"dni_cifd", d.nif}, {"nifo", op.nif}, {"razon", op.name}, {"provo", "20"},
                 {"claveopo", op.key}, {"importe", std::to_string(op.amount)},
                 {"impopet1", quarter}, {"impopet2", quarter}, {"impopet3", quarter},
                 {"impopet4", quarter}});
    }
    for (const Rental& r : d.rentals) {
      line('I', {{"dni_cifd", d.nif}, {"nifa", r.nif}, {"razon", r.name},
                 {"importe", std::to_string(r.amount)}, {"provi", "20"},
                 {"municipioa", "Donostia"}, {"refcat", "9872023VH5797S0001WX"}, {"viaa", "CL"},
                 {"domicilioa", "Easo"}, {"numeroa", "21"}});
    }
  }
  if (!unknown.empty()) std::abort();
  return file;
}

enum Kind { k2014, k2012, kState };

struct Fixture {
  fs::path dir;
  std::vector<Declarant> data;
  fs::path files[3];
  Fixture() {
    std::string pattern = (fs::temp_directory_path() / "zerbal-bench-XXXXXX").string();
    if (::mkdtemp(pattern.data()) == nullptr) std::abort();
    dir = pattern;
    data = Data();
    files[k2014] = MakeFile(dir, data, 2014);
    files[k2012] = MakeFile(dir, data, 2012);
    files[kState] = MakeStateFile(dir, data);
  }
  ~Fixture() { fs::remove_all(dir); }
};

Fixture& Shared() {
  static Fixture fixture;
  return fixture;
}

// The first `lines` lines of a file, on their own.
fs::path Prefix(Kind kind, int64_t lines) {
  const fs::path out =
      Shared().dir / ("first_" + std::to_string(kind) + "_" + std::to_string(lines) + ".txt");
  if (fs::exists(out)) return out;
  std::ifstream in(Shared().files[kind], std::ios::binary);
  std::ofstream copy(out, std::ios::binary);
  std::string line;
  for (int64_t k = 0; k < lines && std::getline(in, line); ++k) copy << line << "\n";
  return out;
}

DatabasePaths FreshDatabases(const std::string& name) {
  const fs::path folder = Shared().dir / name;
  fs::remove_all(folder);
  return CreateDatabases(folder);
}

double MaxRssMegabytes() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return usage.ru_maxrss / 1024.0;
}

// Both benchmarks at the same sizes of file, once each (a run is long).
void Sizes(benchmark::internal::Benchmark* b) {
  b->Arg(1000)->Arg(10000)->Arg(101301)->Iterations(1)->Unit(benchmark::kSecond)->UseRealTime();
}

void Rates(benchmark::State& state, int64_t lines) {
  const auto n = static_cast<double>(lines);
  state.counters["lines/s"] = benchmark::Counter(n, benchmark::Counter::kIsRate);
  state.counters["us/line"] =
      benchmark::Counter(n, benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

void BM_ImportFile(benchmark::State& state, Kind kind) {
  const fs::path file = Prefix(kind, state.range(0));
  int64_t lines = 0;
  for (auto _ : state) {
    state.PauseTiming();
    const DatabasePaths paths = FreshDatabases("import");
    ImportOptions options;
    options.data = paths.data;
    options.lookup = paths.lookup;
    options.file = file;
    options.state = kind == kState;
    options.year_max = 2014;
    state.ResumeTiming();
    const ImportSummary s = ImportFile(options);
    if (s.refused != 0) state.SkipWithError("lines were refused");
    lines += s.lines;
  }
  Rates(state, lines);
  state.counters["maxrss_MB"] = MaxRssMegabytes();
}
BENCHMARK_CAPTURE(BM_ImportFile, 2014, k2014)->Apply(Sizes);
BENCHMARK_CAPTURE(BM_ImportFile, 2012, k2012)->Apply(Sizes);
BENCHMARK_CAPTURE(BM_ImportFile, state_2014, kState)->Apply(Sizes);

// The same file into a data database on the PostgreSQL server that
// ZERBAL_BENCH_PG names (a URI of a database where the bench may create
// others; over a Unix socket, e.g. postgresql:///postgres?host=/tmp/pg), in
// one process and split by declarant among four processes at once; the
// four processes on a file beside it. Without ZERBAL_BENCH_PG they say so
// and measure nothing.
std::string FreshServerDatabase() {
  const char* server = std::getenv("ZERBAL_BENCH_PG");
  if (server == nullptr || *server == '\0') return {};
  data::PgHandle conn = data::PgConnect(server);
  PQsetNoticeProcessor(conn.get(), [](void*, const char*) {}, nullptr);
  data::PgExecScript(conn.get(), "DROP DATABASE IF EXISTS zerbal_bench WITH (FORCE)");
  data::PgExecScript(conn.get(), "CREATE DATABASE zerbal_bench TEMPLATE template0 ENCODING 'UTF8'");
  const std::string uri = data::PgUriWithDatabase(server, "zerbal_bench");
  CreateDataDatabase(uri);
  return uri;
}

// The 2014 file's lines of every `parts`-th run of declarants, from the
// `part`-th on, with the presenter line first.
fs::path Part(int part, int parts) {
  const fs::path out = Shared().dir / ("part_" + std::to_string(part) + "_of_" + std::to_string(parts));
  if (fs::exists(out)) return out;
  std::ifstream in(Shared().files[k2014], std::ios::binary);
  std::ofstream copy(out, std::ios::binary);
  std::string line;
  int declarant = -1;
  while (std::getline(in, line)) {
    if (!line.empty() && line[0] == '1') ++declarant;
    if (declarant < 0 || declarant * parts / kDeclarants == part) copy << line << "\n";
  }
  return out;
}

ImportSummary ImportInto(const std::string& data, const fs::path& lookup, const fs::path& file) {
  ImportOptions options;
  options.data = data;
  options.lookup = lookup;
  options.file = file;
  options.year_max = 2014;
  return ImportFile(options);
}

void BM_ImportFileServer(benchmark::State& state) {
  const fs::path file = Prefix(k2014, state.range(0));
  int64_t lines = 0;
  for (auto _ : state) {
    state.PauseTiming();
    const std::string uri = FreshServerDatabase();
    if (uri.empty()) {
      state.SkipWithError("ZERBAL_BENCH_PG is not set");
      break;
    }
    const DatabasePaths paths = FreshDatabases("server");
    state.ResumeTiming();
    const ImportSummary s = ImportInto(uri, paths.lookup, file);
    if (s.refused != 0) state.SkipWithError("lines were refused");
    lines += s.lines;
  }
  Rates(state, lines);
}
BENCHMARK(BM_ImportFileServer)->Arg(10000)->Arg(101301)->Iterations(1)->Unit(benchmark::kSecond)->UseRealTime();

// Four processes at once, each importing its part of the whole file.
void BM_ImportFileFourProcesses(benchmark::State& state, bool server) {
  constexpr int kProcesses = 4;
  for (int p = 0; p < kProcesses; ++p) Part(p, kProcesses);
  int64_t lines = 0;
  for (auto _ : state) {
    state.PauseTiming();
    const DatabasePaths paths = FreshDatabases("four");
    const std::string data = server ? FreshServerDatabase() : paths.data.string();
    if (data.empty()) {
      state.SkipWithError("ZERBAL_BENCH_PG is not set");
      break;
    }
    state.ResumeTiming();
    std::vector<pid_t> children;
    for (int p = 0; p < kProcesses; ++p) {
      const pid_t pid = ::fork();
      if (pid == 0) {
        // A child leaves without the parent's handles being closed under it.
        int refused = 1;
        try {
          refused = ImportInto(data, paths.lookup, Part(p, kProcesses)).refused == 0 ? 0 : 1;
        } catch (...) {
        }
        ::_exit(refused);
      }
      children.push_back(pid);
    }
    for (pid_t pid : children) {
      int status = 0;
      ::waitpid(pid, &status, 0);
      if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) state.SkipWithError("a process failed");
    }
    lines += Shared().data.size() + kOperations + kRentals + kProcesses;
  }
  Rates(state, lines);
}
BENCHMARK_CAPTURE(BM_ImportFileFourProcesses, file, false)->Iterations(1)->Unit(benchmark::kSecond)->UseRealTime();
BENCHMARK_CAPTURE(BM_ImportFileFourProcesses, server, true)->Iterations(1)->Unit(benchmark::kSecond)->UseRealTime();

// The baseline: every row of the file inserted with prepared statements.
class Raw {
 public:
  explicit Raw(const fs::path& path)
      : connection_(data::EngineConnection::Open(path.string(), false)),
        declarant_(Prepare("INSERT INTO TDeclarante (dni_cifd, nombred) VALUES (?, ?)")),
        declaration_(Prepare(
            "INSERT INTO TDeclaraciones (coddecr, ejercicio, moneda) VALUES (?, 2014, 'E')")),
        operation_(Prepare(
            "INSERT INTO tOperadores (coddeclar, provo, paiso, nifo, razon, claveopo, importe, "
            "impmet, impinm, claverep, opeseg, opearr, impopeT1, impopeT2, impopeT3, impopeT4, "
            "impmobT1, impmobT2, impmobT3, impmobT4, ejerimpmet, siglaspaisintra, nifpaisintra, "
            "opeivacaja, opeinvsujpas, operegposadu, impanudevopecaj) VALUES (?, 20, ' ', ?, ?, "
            "?, ?, 0, 0, ' ', ' ', ' ', ?, ?, ?, ?, 0, 0, 0, 0, 0, ' ', ' ', ' ', ' ', ' ', 0)")),
        rental_(Prepare(
            "INSERT INTO tArrendamientos (coddeclar, provi, prova, paiso, nifa, razon, importe, "
            "municipioa, refcat, viaa, domicilioa, numeroa, escaleraa, pisoa, puertaa) VALUES "
            "(?, 20, 20, ' ', ?, ?, ?, 'Donostia', '9872023VH5797S0001WX', 'CL', 'Easo', 21, "
            "' ', ' ', ' ')")) {}

  // The declarant's rows, `budget` rows at the most; returns how many.
  int64_t Declarant(const Declarant& d, int64_t budget) {
    if (budget <= 0) return 0;
    Text(declarant_, 1, d.nif);
    Text(declarant_, 2, d.name);
    Step(declarant_);
    sqlite3_bind_int64(declaration_.get(), 1, sqlite3_last_insert_rowid(connection_->db()));
    Step(declaration_);
    const int64_t declaration = sqlite3_last_insert_rowid(connection_->db());
    int64_t rows = 1;
    for (const Operation& op : d.operations) {
      if (rows++ >= budget) return budget;
      sqlite3_bind_int64(operation_.get(), 1, declaration);
      Text(operation_, 2, op.nif);
      Text(operation_, 3, op.name);
      Text(operation_, 4, op.key);
      sqlite3_bind_double(operation_.get(), 5, static_cast<double>(op.amount));
      for (int q = 0; q < 4; ++q) {
        sqlite3_bind_double(operation_.get(), 6 + q, static_cast<double>(op.amount / 4));
      }
      Step(operation_);
    }
    for (const Rental& r : d.rentals) {
      if (rows++ >= budget) return budget;
      sqlite3_bind_int64(rental_.get(), 1, declaration);
      Text(rental_, 2, r.nif);
      Text(rental_, 3, r.name);
      sqlite3_bind_double(rental_.get(), 4, static_cast<double>(r.amount));
      Step(rental_);
    }
    return rows;
  }

 private:
  data::Statement Prepare(const char* sql) { return data::PrepareOne(connection_->db(), sql); }
  static void Text(data::Statement& s, int i, const std::string& text) {
    sqlite3_bind_text(s.get(), i, text.c_str(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
  }
  static void Step(data::Statement& s) {
    if (sqlite3_step(s.get()) != SQLITE_DONE) std::abort();
    sqlite3_reset(s.get());
  }

  std::shared_ptr<data::EngineConnection> connection_;
  data::Statement declarant_, declaration_, operation_, rental_;
};

// The rows of the file's first lines (record 0 stores nothing).
void BM_RawInsertBaseline(benchmark::State& state) {
  int64_t lines = 0;
  for (auto _ : state) {
    state.PauseTiming();
    const DatabasePaths paths = FreshDatabases("raw");
    state.ResumeTiming();
    Raw raw(paths.data);
    int64_t left = state.range(0) - 1;
    for (const Declarant& d : Shared().data) left -= raw.Declarant(d, left);
    lines += state.range(0);
  }
  Rates(state, lines);
}
BENCHMARK(BM_RawInsertBaseline)->Apply(Sizes);

}  // namespace
}  // namespace zerbal::cli
