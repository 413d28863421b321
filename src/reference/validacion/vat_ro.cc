// Romania: company code of 2 to 10 digits, or personal code (CNP) of 13.

#include <string>

#include "reference/validacion/digits.h"
#include "reference/validacion/vat_checks.h"

namespace zerbal::validacion {
namespace {

// Digits before the check digit are aligned to the right of the 9 weights.
bool IsCompanyCode(std::string_view d) {
  if (d[0] == '0') return false;
  const std::string padded = ZeroPadded(d.substr(0, d.size() - 1), 9);
  const int s = WeightedSum(padded, {7, 5, 3, 2, 1, 7, 5, 3, 2});
  return Digit(d.back()) == 10 * s % 11 % 10;
}

bool IsCountyCode(int c) {
  return (c >= 1 && c <= 48) || c == 51 || c == 52 || c == 70 || (c >= 80 && c <= 83);
}

bool IsPersonalCode(std::string_view d) {
  // Century by the first digit (1-9; 7, 8, 9 are residents, read as 1900s).
  static constexpr int kCentury[] = {0, 1900, 1900, 1800, 1800, 2000, 2000, 1900, 1900, 1900};
  const int first = Digit(d[0]);
  if (first == 0) return false;
  const int year = kCentury[first] + static_cast<int>(ToNumber(d.substr(1, 2)));
  if (!IsValidDate(year, static_cast<int>(ToNumber(d.substr(3, 2))),
                   static_cast<int>(ToNumber(d.substr(5, 2))))) {
    return false;
  }
  if (!IsCountyCode(static_cast<int>(ToNumber(d.substr(7, 2))))) return false;
  const int r = WeightedSum(d, {2, 7, 9, 1, 4, 6, 3, 5, 8, 2, 7, 9}) % 11;
  return Digit(d[12]) == (r == 10 ? 1 : r);
}

}  // namespace

bool CheckRO(std::string_view body) {
  if (!AllDigits(body)) return false;
  if (body.size() >= 2 && body.size() <= 10) return IsCompanyCode(body);
  return body.size() == 13 && IsPersonalCode(body);
}

}  // namespace zerbal::validacion
