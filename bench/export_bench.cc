// Export of a fiscal year to its declaration file, through the same code as
// `zerbal export`, against reading the same rows through raw prepared
// statements and formatting nothing, in the same run. Years of 30 and of
// 300 declarants, each with 300 operations and one rental (9,061 and 90,601
// records); the export of each also runs in a process of its own, whose
// peak memory is reported.

#include <benchmark/benchmark.h>
#include <stdlib.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <map>

#include "bench/bench_folder.h"
#include "cli/demo_data.h"
#include "cli/export_file.h"
#include "data/engine.h"
#include "zerbal/arrendamiento.h"
#include "zerbal/databases.h"
#include "zerbal/declaraciones.h"
#include "zerbal/declarado.h"
#include "zerbal/declarante.h"
#include "zerbal/presentador.h"

namespace zerbal::cli {
namespace {

namespace fs = std::filesystem;

constexpr int kOperationsEach = 300;

// A data database with `declarants` declarants of 2014: the first one's
// operations saved through cDeclarado, the others' copied from them in SQL.
fs::path MakeYear(int declarants) {
  const DatabasePaths paths = CreateDatabases(bench::NewBenchFolder());
  const std::string data = paths.data.string();
  cPresentador presentador;
  cDeclarante declarante;
  cDeclaraciones declaraciones;
  cDeclarado declarado;
  cArrendamiento arrendamiento;
  for (PathProperties* c : std::initializer_list<PathProperties*>{
           &presentador, &declarante, &declaraciones, &declarado, &arrendamiento}) {
    c->mdbmod(data);
  }
  presentador.GuardarPresentador(SamplePresenter());
  const DemoDeclarant& sample = SampleDeclarants()[0];
  auto conn = data::EngineConnection::Open(data, false);
  int32_t first = 0;
  for (int d = 0; d < declarants; ++d) {
    Variant buffer = DeclarantBuffer(sample);
    buffer(1) = std::to_string(10000000 + d) + "A";
    const int32_t declaration =
        declaraciones.GuardarDeclaracion(2014, "E", declarante.GuardarDeclarante(buffer));
    arrendamiento.GuardarArrendamiento(RentalBuffer(declaration, sample.rentals[0]));
    if (d == 0) {
      first = declaration;
      for (int k = 0; k < kOperationsEach; ++k) {
        const DemoOperation& op = sample.operations[k % sample.operations.size()];
        declarado.GuardarDeclarado(OperationBuffer(declaration, 2014, op));
      }
      continue;
    }
    data::ExecScript(conn->db(),
                     "INSERT INTO tOperadores (coddeclar, provo, paiso, nifo, razon, claveopo, "
                     "importe, impmet, impinm, claverep, opeseg, opearr, ejerimpmet) SELECT " +
                         std::to_string(declaration) +
                         ", provo, paiso, nifo, razon, claveopo, importe, impmet, impinm, claverep, "
                         "opeseg, opearr, ejerimpmet FROM tOperadores WHERE coddeclar = " +
                         std::to_string(first));
  }
  return paths.data;
}

const fs::path& Year(int declarants) {
  static std::map<int, fs::path> years;
  auto [it, made] = years.try_emplace(declarants);
  if (made) it->second = MakeYear(declarants);
  return it->second;
}

ExportOptions Options(const fs::path& data) {
  ExportOptions options;
  options.data = data;
  options.year = 2014;
  options.out = data.parent_path() / "347_2014.txt";
  return options;
}

// Peak memory, in MB, of a process of its own that exports the year.
double ExportPeakMegabytes(const fs::path& data) {
  const pid_t child = ::fork();
  if (child == 0) {
    try {
      ExportYear(Options(data));
    } catch (...) {
      ::_exit(1);
    }
    ::_exit(0);
  }
  int status = 0;
  struct rusage usage {};
  ::wait4(child, &status, 0, &usage);
  if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) std::abort();
  return static_cast<double>(usage.ru_maxrss) / 1024.0;
}

void BM_ExportYear(benchmark::State& state) {
  const fs::path& data = Year(static_cast<int>(state.range(0)));
  int64_t records = 0;
  for (auto _ : state) records += ExportYear(Options(data)).records;
  state.counters["records/s"] =
      benchmark::Counter(static_cast<double>(records), benchmark::Counter::kIsRate);
  state.counters["records"] = static_cast<double>(records / state.iterations());
  state.counters["peak_MB"] = ExportPeakMegabytes(data);
}
BENCHMARK(BM_ExportYear)->Arg(30)->Arg(300)->Unit(benchmark::kMillisecond)->UseRealTime();

// The same rows read with a prepared statement a table, every column of
// every row read, nothing formatted.
void BM_RawReadYear(benchmark::State& state) {
  const fs::path& data = Year(static_cast<int>(state.range(0)));
  auto conn = data::EngineConnection::Open(data.string(), false);
  const char* queries[] = {
      "SELECT * FROM TPresentador",
      "SELECT d.* FROM TDeclarante d, TDeclaraciones c WHERE c.coddecr = d.coddec AND "
      "c.ejercicio = 2014 ORDER BY d.dni_cifd",
      "SELECT o.* FROM tOperadores o, TDeclaraciones c WHERE o.coddeclar = c.coddecla AND "
      "c.ejercicio = 2014 ORDER BY o.coddeclar, o.codope",
      "SELECT a.* FROM tArrendamientos a, TDeclaraciones c WHERE a.coddeclar = c.coddecla AND "
      "c.ejercicio = 2014 ORDER BY a.coddeclar, a.codarr"};
  std::vector<data::Statement> statements;
  for (const char* sql : queries) statements.push_back(data::PrepareOne(conn->db(), sql));
  int64_t rows = 0;
  for (auto _ : state) {
    for (const data::Statement& stmt : statements) {
      while (sqlite3_step(stmt.get()) == SQLITE_ROW) {
        for (int c = 0; c < sqlite3_column_count(stmt.get()); ++c) {
          benchmark::DoNotOptimize(data::ColumnValue(stmt.get(), c));
        }
        ++rows;
      }
      sqlite3_reset(stmt.get());
    }
  }
  state.counters["records/s"] =
      benchmark::Counter(static_cast<double>(rows), benchmark::Counter::kIsRate);
}
BENCHMARK(BM_RawReadYear)->Arg(30)->Arg(300)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace zerbal::cli
