// Operations stored and read per second through the public class cDeclarado
// (each call opening, running its statements and closing), each against the
// same work done with raw prepared statements on a connection of the same
// engine settings, in the same run:
//  - GuardarDeclarado against single-row inserts, one transaction a row;
//  - CargarDeclarado and DeclaradosCoincidentes against their query.

#include <benchmark/benchmark.h>
#include <stdlib.h>

#include <filesystem>

#include "bench/bench_folder.h"
#include "cli/demo_data.h"
#include "data/engine.h"
#include "zerbal/databases.h"
#include "zerbal/declaraciones.h"
#include "zerbal/declarado.h"
#include "zerbal/declarante.h"

namespace zerbal::cli {
namespace {

namespace fs = std::filesystem;

constexpr int kOperations = 300;

// The identifier of the k-th operation of the loaded year.
std::string Nif(int64_t k) { return std::string("B").append(std::to_string(10000000 + k)); }

struct Year {
  std::string data;
  int32_t declaration = 0;
  std::vector<int32_t> operations;  // codope of each, when made with them
};

Year MakeYear(bool with_operations = false) {
  const DatabasePaths paths = CreateDatabases(bench::NewBenchFolder());
  cDeclarante declarante;
  cDeclaraciones declaraciones;
  declarante.mdbmod(paths.data.string());
  declaraciones.mdbmod(paths.data.string());
  const DemoDeclarant& sample = SampleDeclarants()[0];
  Year year{paths.data.string(),
            declaraciones.GuardarDeclaracion(
                2014, "E", declarante.GuardarDeclarante(DeclarantBuffer(sample))),
            {}};
  cDeclarado declarado;
  declarado.mdbmod(year.data);
  for (int k = 0; with_operations && k < kOperations; ++k) {
    Variant buffer = OperationBuffer(year.declaration, 2014, sample.operations[0]);
    buffer(4) = Nif(k);
    year.operations.push_back(declarado.GuardarDeclarado(buffer));
  }
  return year;
}

// A raw prepared statement of its own connection, stepped to its end with
// every column read, for each value of `codes` in turn.
template <typename BindRow>
void RawQuery(benchmark::State& state, const Year& year, const char* sql, BindRow bind) {
  auto conn = data::EngineConnection::Open(year.data, false);
  data::Statement stmt = data::PrepareOne(conn->db(), sql);
  size_t k = 0;
  for (auto _ : state) {
    bind(stmt.get(), year.operations[k++ % year.operations.size()]);
    while (sqlite3_step(stmt.get()) == SQLITE_ROW) {
      for (int c = 0; c < sqlite3_column_count(stmt.get()); ++c) {
        benchmark::DoNotOptimize(data::ColumnValue(stmt.get(), c));
      }
    }
    sqlite3_reset(stmt.get());
  }
  state.counters["rows/s"] =
      benchmark::Counter(static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
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
// whole run, bound and stepped; no key read back, no SQL text built. Its
// argument 1 leaves the log as the engine would (flushed at its own
// checkpoints, synchronous NORMAL) instead of emptying it after each commit:
// what the safety of replaced files costs.
void BM_RawPreparedInsert(benchmark::State& state) {
  static const Year year = MakeYear();
  auto conn = data::EngineConnection::Open(year.data, false);
  if (state.range(0) == 1) {
    sqlite3_wal_hook(conn->db(), nullptr, nullptr);
    sqlite3_wal_autocheckpoint(conn->db(), 1000);
    data::ExecScript(conn->db(), "PRAGMA synchronous = NORMAL");
  }
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
BENCHMARK(BM_RawPreparedInsert)->Arg(0)->Arg(1)->MinTime(2.0)->UseRealTime();

const Year& Loaded() {
  static const Year year = MakeYear(true);
  return year;
}

void BM_CargarDeclarado(benchmark::State& state) {
  const Year& year = Loaded();
  cDeclarado declarado;
  declarado.mdbmod(year.data);
  size_t k = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(declarado.CargarDeclarado(year.operations[k++ % kOperations]));
  }
  Rate(state);
}
BENCHMARK(BM_CargarDeclarado)->MinTime(2.0)->UseRealTime();

void BM_RawCargarDeclarado(benchmark::State& state) {
  RawQuery(state, Loaded(),
           "Select coddeclar,provo,paiso,nifo,razon,claveopo,importe,impmet,impinm,claverep,"
           "opeseg,opearr,impopet1,impopet2,impopet3,impopet4,impmobt1,impmobt2,impmobt3,"
           "impmobt4,ejerimpmet,siglaspaisintra,nifpaisintra,opeivacaja,opeinvsujpas,"
           "operegposadu,impanudevopecaj from tOperadores WHERE codope = ?",
           [](sqlite3_stmt* stmt, int32_t codope) { sqlite3_bind_int(stmt, 1, codope); });
}
BENCHMARK(BM_RawCargarDeclarado)->MinTime(2.0)->UseRealTime();

// Is there another row like operation k of the declaration? (There is not.)
void BM_DeclaradosCoincidentes(benchmark::State& state) {
  const Year& year = Loaded();
  cDeclarado declarado;
  declarado.mdbmod(year.data);
  const std::string declaration = std::to_string(year.declaration);
  size_t k = 0;
  for (auto _ : state) {
    const int32_t codope = year.operations[k++ % kOperations];
    benchmark::DoNotOptimize(declarado.DeclaradosCoincidentes(
        declaration, Nif(codope - year.operations[0]), "A", " ", " ",
        " ", codope, 0, " ", " ", " "));
  }
  Rate(state);
}
BENCHMARK(BM_DeclaradosCoincidentes)->MinTime(2.0)->UseRealTime();

void BM_RawDeclaradosCoincidentes(benchmark::State& state) {
  const Year& year = Loaded();
  RawQuery(state, year,
           "Select 1 From tOperadores Where coddeclar=?1 And nifo=?2 And claveopo='A' And "
           "opearr=' ' AND opeseg = ' ' AND claverep = ' ' and ejerimpmet = 0 and codope <> ?3 "
           "and opeivacaja=' ' and opeinvsujpas=' ' and operegposadu=' '",
           [&](sqlite3_stmt* stmt, int32_t codope) {
             const std::string nif = Nif(codope - year.operations[0]);
             sqlite3_bind_int(stmt, 1, year.declaration);
             sqlite3_bind_text(stmt, 2, nif.c_str(), -1, SQLITE_TRANSIENT);
             sqlite3_bind_int(stmt, 3, codope);
           });
}
BENCHMARK(BM_RawDeclaradosCoincidentes)->MinTime(2.0)->UseRealTime();

}  // namespace
}  // namespace zerbal::cli
