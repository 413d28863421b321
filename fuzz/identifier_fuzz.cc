// The identifier checks on any bytes: the Spanish NIF (stored and as
// written) and the VAT numbers of every country. The first byte picks the
// country of ValidarForeignNif; the rest is the identifier. Besides never
// failing, the checks must keep what their header promises: a complete NIF
// is also valid where the control character may be left out, and valid as
// people write it.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "reference/miscelaneos.h"
#include "reference/validacion/validacion.h"

namespace {

constexpr std::string_view kCountries[] = {
    "AT", "BE", "BG", "CY", "CZ", "DE", "DK", "EE", "EL", "GR", "ES", "FI", "FR", "HR", "HU", "IE",
    "IT", "LT", "LU", "LV", "MT", "NL", "PL", "PT", "RO", "SE", "SI", "SK", "XI", "es", "", "E"};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace zerbal::validacion;
  if (size == 0) return 0;
  const std::string_view country = kCountries[data[0] % std::size(kCountries)];
  const std::string text(reinterpret_cast<const char*>(data) + 1, size - 1);

  const bool complete = ValidaNifCif(text, false);
  if (complete && !ValidaNifCif(text, true)) std::abort();
  if (complete && !ValidarNifEscrito(text)) std::abort();
  ValidarForeignNif(text, country);
  ValidarForeignNif(text, text.substr(0, 2));
  ValidarVat(text);

  const zerbal::cMiscelaneos component;
  if (component.ValidaNifCif(text, false) != complete) std::abort();
  component.ValidarForeignNIf(text, std::string(country));
  return 0;
}
