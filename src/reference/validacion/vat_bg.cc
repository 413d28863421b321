// Bulgaria: 9 digits (legal entity) or 10 digits (personal, foreigner or other
// number; any of the three checks may pass).

#include "reference/validacion/digits.h"
#include "reference/validacion/vat_checks.h"

namespace zerbal::validacion {
namespace {

bool IsEntityNumber(std::string_view d) {
  int r = WeightedSum(d, {1, 2, 3, 4, 5, 6, 7, 8}) % 11;
  if (r == 10) r = WeightedSum(d, {3, 4, 5, 6, 7, 8, 9, 10}) % 11;
  return Digit(d[8]) == r % 10;
}

// EGN: YYMMDD with the century in the month (+20 for 1800s, +40 for 2000s).
bool IsPersonalNumber(std::string_view d) {
  int year = 1900 + static_cast<int>(ToNumber(d.substr(0, 2)));
  int month = static_cast<int>(ToNumber(d.substr(2, 2)));
  if (month > 40) {
    year += 100;
    month -= 40;
  } else if (month > 20) {
    year -= 100;
    month -= 20;
  }
  if (!IsValidDate(year, month, static_cast<int>(ToNumber(d.substr(4, 2))))) return false;
  return Digit(d[9]) == WeightedSum(d, {2, 4, 8, 5, 10, 9, 7, 3, 6}) % 11 % 10;
}

bool IsForeignerNumber(std::string_view d) {
  return Digit(d[9]) == WeightedSum(d, {21, 19, 17, 13, 11, 9, 7, 3, 1}) % 10;
}

bool IsOtherNumber(std::string_view d) {
  // A value of 10 matches no digit.
  return Digit(d[9]) == (11 - WeightedSum(d, {4, 3, 2, 7, 6, 5, 4, 3, 2}) % 11) % 11;
}

}  // namespace

bool CheckBG(std::string_view body) {
  if (!AllDigits(body)) return false;
  if (body.size() == 9) return IsEntityNumber(body);
  if (body.size() != 10) return false;
  return IsPersonalNumber(body) || IsForeignerNumber(body) || IsOtherNumber(body);
}

}  // namespace zerbal::validacion
