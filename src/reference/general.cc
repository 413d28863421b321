#include "reference/general.h"

#include <cmath>

#include "base/convert.h"
#include "base/raise.h"
#include "base/text.h"
#include "reference/country_codes.h"

namespace zerbal::General {

double BC(const Variant& value) {
  try {
    const std::string text = CStr(value);
    if (Trim(text).empty()) return 0;
    return SoloDigitos(text) ? CDbl(value) : 0;
  } catch (const Error& e) {
    if (e.Number() == errc::kTypeMismatch) return 0;
    throw Error(e.Number(), e.Source(), "General.BC\r\n" + e.Description());
  }
}

bool SoloDigitos(std::string_view text) {
  return text.find_first_not_of("0123456789-") == std::string_view::npos;
}

std::string FormatoNumero(double value, int16_t width, std::string_view fill) {
  return Format(value, RepeatChar(fill, width));
}

std::string FormatoTexto(std::string& text, int16_t width, std::string_view fill) {
  if (Len(text) > width) text = Left(text, width);
  return text + RepeatChar(fill, width - Len(text));
}

std::string FormatoImporte(double value, int16_t width, std::string_view fill) {
  return FormatoNumero(std::fabs(value), width, fill);
}

std::string Signo(double value, int16_t mode) {
  if (value >= 0) return "";
  return mode == 0 ? "N" : "-";
}

std::string ConvertirClave(const std::string& key) {
  const std::string upper = UCase(key);
  if (upper == "A" || upper == "B" || upper == "C" || upper == "D" || upper == "E") return key;
  if (upper == "F") return "B";
  if (upper == "G") return "A";
  return "";
}

std::string ConvertirProvPais(std::string& code) {
  if (Trim(UCase(Left(code, 2))) != "99") {
    const std::string trimmed = Trim(code);
    return trimmed + std::string(Len(trimmed) < 5 ? 5 - Len(trimmed) : 0, ' ');
  }
  code = CodigoPais(Right(code, 2), 1);
  std::string country = code;
  return "99" + FormatoTexto(country, 3, " ");
}

std::string CodigoPais(const std::string& code, int16_t mode) {
  const std::string trimmed = Trim(code);
  if (trimmed.empty()) return code;
  if (mode == 0) {
    const double number = Val(code);
    for (const CountryCode& row : CountryCodes()) {
      if (row.number == number) return std::string(row.letters);
    }
  } else {
    for (const CountryCode& row : CountryCodes()) {
      if (row.letters == trimmed) return std::to_string(row.number);
    }
  }
  return " ";
}

}  // namespace zerbal::General
