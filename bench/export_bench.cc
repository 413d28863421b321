// Time to export a fiscal year of 10,000 operations (50 declarants with 200
// operations and one rental each) into the declaration file, through the
// same code as `zerbal export`.

#include <benchmark/benchmark.h>
#include <stdlib.h>

#include <filesystem>

#include "cli/demo_data.h"
#include "cli/export_file.h"
#include "zerbal/arrendamiento.h"
#include "zerbal/databases.h"
#include "zerbal/declaraciones.h"
#include "zerbal/declarado.h"
#include "zerbal/declarante.h"
#include "zerbal/presentador.h"

namespace zerbal::cli {
namespace {

namespace fs = std::filesystem;

constexpr int kDeclarants = 50;
constexpr int kOperationsEach = 200;

fs::path MakeYear() {
  std::string pattern = (fs::temp_directory_path() / "zerbal-bench-XXXXXX").string();
  if (::mkdtemp(pattern.data()) == nullptr) std::abort();
  const DatabasePaths paths = CreateDatabases(pattern);
  cPresentador presentador;
  cDeclarante declarante;
  cDeclaraciones declaraciones;
  cDeclarado declarado;
  cArrendamiento arrendamiento;
  for (PathProperties* c : std::initializer_list<PathProperties*>{
           &presentador, &declarante, &declaraciones, &declarado, &arrendamiento}) {
    c->mdbmod(paths.data.string());
  }
  presentador.GuardarPresentador(SamplePresenter());
  const DemoDeclarant& sample = SampleDeclarants()[0];
  for (int d = 0; d < kDeclarants; ++d) {
    Variant buffer = DeclarantBuffer(sample);
    buffer(1) = std::to_string(10000000 + d) + "A";
    const int32_t declaration =
        declaraciones.GuardarDeclaracion(2014, "E", declarante.GuardarDeclarante(buffer));
    for (int k = 0; k < kOperationsEach; ++k) {
      const DemoOperation& op = sample.operations[k % sample.operations.size()];
      declarado.GuardarDeclarado(OperationBuffer(declaration, 2014, op));
    }
    arrendamiento.GuardarArrendamiento(RentalBuffer(declaration, sample.rentals[0]));
  }
  return paths.data;
}

void BM_ExportYearOf10000Operations(benchmark::State& state) {
  static const fs::path data = MakeYear();
  ExportOptions options;
  options.data = data;
  options.year = 2014;
  options.out = data.parent_path() / "347_2014.txt";
  int64_t records = 0;
  for (auto _ : state) records += ExportYear(options).records;
  state.counters["records/s"] = benchmark::Counter(static_cast<double>(records),
                                                   benchmark::Counter::kIsRate);
}
BENCHMARK(BM_ExportYearOf10000Operations)->Unit(benchmark::kMillisecond)->MinTime(2.0);

}  // namespace
}  // namespace zerbal::cli
