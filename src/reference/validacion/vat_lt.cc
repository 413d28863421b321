// Lithuania: 9 digits (legal entity, 8th digit 1) or 12 digits (11th digit 1);
// mod 11 check digit with a second set of weights when the first gives 10.

#include "reference/validacion/digits.h"
#include "reference/validacion/vat_checks.h"

namespace zerbal::validacion {

bool CheckLT(std::string_view body) {
  if ((body.size() != 9 && body.size() != 12) || !AllDigits(body)) return false;
  if (body[body.size() - 2] != '1') return false;
  const std::string_view digits = body.substr(0, body.size() - 1);
  int r = WeightedSum(digits, {1, 2, 3, 4, 5, 6, 7, 8, 9, 1, 2}) % 11;
  if (r == 10) r = WeightedSum(digits, {3, 4, 5, 6, 7, 8, 9, 1, 2, 3, 4}) % 11;
  return Digit(body.back()) == r % 10;
}

}  // namespace zerbal::validacion
