// Czech Republic: 8-digit legal entity, 9-digit individual beginning with 6,
// or a birth number of 9 or 10 digits.

#include "reference/validacion/digits.h"
#include "reference/validacion/vat_checks.h"

namespace zerbal::validacion {
namespace {

bool IsEntityNumber(std::string_view d) {
  if (d[0] == '9') return false;
  const int r = WeightedSum(d, {8, 7, 6, 5, 4, 3, 2}) % 11;
  const int expected = r == 0 ? 1 : (r == 1 ? 0 : 11 - r);
  return Digit(d[7]) == expected;
}

// Individuals without a birth number: d1 is the 6 and takes no weight.
bool IsSpecialIndividual(std::string_view d) {
  const int r = WeightedSum(d.substr(1), {8, 7, 6, 5, 4, 3, 2}) % 11;
  return Digit(d[8]) == (r + 8) % 10;
}

}  // namespace

bool CheckCZ(std::string_view body) {
  if (!AllDigits(body)) return false;
  if (body.size() == 8) return IsEntityNumber(body);
  if (body.size() == 9 && body[0] == '6') return IsSpecialIndividual(body);
  return IsBirthNumber(body);
}

}  // namespace zerbal::validacion
