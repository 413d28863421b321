// Stored operations per second: cDeclarado.GuardarDeclarado through the
// public class (open, insert, key read back, all per call), against raw
// prepared single-row inserts on a connection of the same engine settings
// (one transaction a row), in the same run.

#include <benchmark/benchmark.h>
#include <stdlib.h>

#include <filesystem>

#include "cli/demo_data.h"
#include "data/engine.h"
#include "zerbal/databases.h"
#include "zerbal/declaraciones.h"
#include "zerbal/declarado.h"
#include "zerbal/declarante.h"

namespace zerbal::cli {
namespace {

namespace fs = std::filesystem;

struct Year {
  std::string data;
  int32_t declaration = 0;
};

Year MakeYear() {
  std::string pattern = (fs::temp_directory_path() / "zerbal-bench-XXXXXX").string();
  if (::mkdtemp(pattern.data()) == nullptr) std::abort();
  const DatabasePaths paths = CreateDatabases(pattern);
  cDeclarante declarante;
  cDeclaraciones declaraciones;
  declarante.mdbmod(paths.data.string());
  declaraciones.mdbmod(paths.data.string());
  const DemoDeclarant& sample = SampleDeclarants()[0];
  return {paths.data.string(),
          declaraciones.GuardarDeclaracion(2014, "E",
                                           declarante.GuardarDeclarante(DeclarantBuffer(sample)))};
}

void Rate(benchmark::State& state) {
  state.counters["rows/s"] =
      benchmark::Counter(static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
}

void BM_GuardarDeclarado(benchmark::State& state) {
  static const Year year = MakeYear();
  cDeclarado declarado;
  declarado.mdbmod(year.data);
  const Variant buffer =
      OperationBuffer(year.declaration, 2014, SampleDeclarants()[0].operations[0]);
  for (auto _ : state) benchmark::DoNotOptimize(declarado.GuardarDeclarado(buffer));
  Rate(state);
}
BENCHMARK(BM_GuardarDeclarado)->MinTime(2.0)->UseRealTime();

// The baseline: the same row through one prepared statement kept for the
// whole run, bound and stepped; no key read back, no SQL text built.
void BM_RawPreparedInsert(benchmark::State& state) {
  static const Year year = MakeYear();
  auto conn = data::EngineConnection::Open(year.data, false);
  data::Statement insert = data::PrepareOne(
      conn->db(),
      "INSERT INTO tOperadores (coddeclar, provo, paiso, nifo, razon, claveopo, importe, impmet, "
      "impinm, claverep, opeseg, opearr, ejerimpmet) VALUES (?, 20, ' ', '12345678Z', "
      "'Proveedor', 'A', 1234567, 0, 0, ' ', ' ', ' ', 0)");
  for (auto _ : state) {
    sqlite3_bind_int(insert.get(), 1, year.declaration);
    if (sqlite3_step(insert.get()) != SQLITE_DONE) std::abort();
    sqlite3_reset(insert.get());
  }
  Rate(state);
}
BENCHMARK(BM_RawPreparedInsert)->MinTime(2.0)->UseRealTime();

}  // namespace
}  // namespace zerbal::cli
