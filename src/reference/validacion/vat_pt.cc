// Portugal: 9 digits not beginning with 0, mod 11 check digit.

#include "reference/validacion/digits.h"
#include "reference/validacion/vat_checks.h"

namespace zerbal::validacion {

bool CheckPT(std::string_view body) {
  if (body.size() != 9 || !AllDigits(body) || body[0] == '0') return false;
  const int r = WeightedSum(body, {9, 8, 7, 6, 5, 4, 3, 2}) % 11;
  return Digit(body[8]) == (r <= 1 ? 0 : 11 - r);
}

}  // namespace zerbal::validacion
