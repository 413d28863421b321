// VAT numbers: the table of countries, and prefix handling common to all.

#include "reference/validacion/normalize.h"
#include "reference/validacion/validacion.h"
#include "reference/validacion/vat_checks.h"

namespace zerbal::validacion {
namespace {

struct VatCountry {
  std::string_view prefix;
  std::string_view alias;       // Another prefix accepted for the same country.
  std::string_view separators;  // Characters ignored anywhere in the number.
  bool (*check)(std::string_view body);
};

constexpr VatCountry kCountries[] = {
    {"AT", "", " -./", CheckAT},   {"BE", "", " -./", CheckBE},
    {"BG", "", " -.", CheckBG},    {"CY", "", " -", CheckCY},
    {"CZ", "", " /", CheckCZ},     {"DE", "", " -./,", CheckDE},
    {"DK", "", " -.,/:", CheckDK}, {"EE", "", " ", CheckEE},
    {"EL", "GR", " -./:", CheckEL}, {"ES", "", " -", CheckES},
    {"FI", "", " -", CheckFI},     {"FR", "", " -.", CheckFR},
    {"HR", "", " -", CheckHR},     {"HU", "", " -", CheckHU},
    {"IE", "", " -", CheckIE},     {"IT", "", " -:", CheckIT},
    {"LT", "", " -", CheckLT},     {"LU", "", " -.:", CheckLU},
    {"LV", "", " -", CheckLV},     {"MT", "", " -", CheckMT},
    {"NL", "", " -.", CheckNL},    {"PL", "", " -", CheckPL},
    {"PT", "", " -.", CheckPT},    {"RO", "", " -", CheckRO},
    {"SE", "", " -.", CheckSE},    {"SI", "", " -", CheckSI},
    {"SK", "", " -", CheckSK},     {"XI", "", " -.", CheckXI},
};

const VatCountry* FindCountry(std::string_view code) {
  if (code.size() != 2) return nullptr;
  for (const VatCountry& c : kCountries) {
    if (StartsWithFolded(code, c.prefix) || StartsWithFolded(code, c.alias)) return &c;
  }
  return nullptr;
}

// Length of the country's prefix at the start of `text`; 0 when absent.
size_t PrefixLength(const VatCountry& country, std::string_view text) {
  if (StartsWithFolded(text, country.prefix) || StartsWithFolded(text, country.alias)) return 2;
  return 0;
}

bool CheckBody(const VatCountry& country, std::string_view number) {
  return country.check(Compact(number, country.separators));
}

}  // namespace

bool ValidarForeignNif(std::string_view text, std::string_view country) {
  const VatCountry* found = FindCountry(country);
  if (found == nullptr) return false;
  text = TrimSpace(text);
  const size_t prefix = PrefixLength(*found, text);
  if (prefix == 0) return CheckBody(*found, text);
  // Read as prefixed first; a French key may itself be the letters "FR".
  return CheckBody(*found, text.substr(prefix)) || CheckBody(*found, text);
}

bool ValidarVat(std::string_view text) {
  text = TrimSpace(text);
  const VatCountry* found = FindCountry(text.substr(0, 2));
  return found != nullptr && CheckBody(*found, text.substr(2));
}

}  // namespace zerbal::validacion
