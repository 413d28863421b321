// Validations per second over the collected identifiers, valid and invalid,
// Spanish and VAT mixed, checked as `zerbal nif` checks them.

#include <fstream>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "reference/validacion/validacion.h"

namespace {

struct Item {
  std::string text;
  bool vat;  // Written with a country prefix; otherwise a Spanish NIF.
};

void Append(const char* name, bool vat, std::vector<Item>* items) {
  std::ifstream file(std::string(ZERBAL_VALIDACION_DATA) + "/" + name);
  std::string line;
  while (std::getline(file, line)) {
    line = line.substr(0, line.find('\t'));
    if (!line.empty()) items->push_back({line, vat});
  }
}

// Interleaved so that consecutive calls do not repeat one branch.
std::vector<Item> MixedItems() {
  std::vector<Item> es;
  std::vector<Item> vat;
  Append("es_nif_valid.txt", false, &es);
  Append("es_nif_invalid.txt", false, &es);
  Append("eu_vat_valid.txt", true, &vat);
  Append("eu_vat_invalid.txt", true, &vat);
  std::vector<Item> mixed;
  for (size_t i = 0; i < es.size() || i < vat.size(); ++i) {
    if (i < es.size()) mixed.push_back(es[i]);
    if (i < vat.size()) mixed.push_back(vat[i]);
  }
  return mixed;
}

void BM_MixedValidation(benchmark::State& state) {
  const std::vector<Item> items = MixedItems();
  if (items.empty()) {
    state.SkipWithError("no test vectors found");
    return;
  }
  for (auto _ : state) {
    for (const Item& item : items) {
      const bool valid = item.vat ? zerbal::validacion::ValidarVat(item.text)
                                  : zerbal::validacion::ValidarNifEscrito(item.text);
      benchmark::DoNotOptimize(valid);
    }
  }
  state.SetItemsProcessed(state.iterations() * static_cast<int64_t>(items.size()));
}
BENCHMARK(BM_MixedValidation);

// Stored-form Spanish identifiers, the library's hot path on import.
void BM_StoredNif(benchmark::State& state) {
  const std::vector<std::string> ids = {"54362315K", "X2482300W", "A13585625", "Q0818001J",
                                        "M1234567L", "54362315Z", "B6471783A", "K2814015F"};
  for (auto _ : state) {
    for (const std::string& id : ids) {
      benchmark::DoNotOptimize(zerbal::validacion::ValidaNifCif(id, false));
    }
  }
  state.SetItemsProcessed(state.iterations() * static_cast<int64_t>(ids.size()));
}
BENCHMARK(BM_StoredNif);

}  // namespace
