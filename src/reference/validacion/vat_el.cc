// Greece: 9 digits (8 get a leading 0), check digit from powers of two.

#include <string>

#include "reference/validacion/digits.h"
#include "reference/validacion/vat_checks.h"

namespace zerbal::validacion {

bool CheckEL(std::string_view body) {
  if ((body.size() != 8 && body.size() != 9) || !AllDigits(body)) return false;
  const std::string digits = ZeroPadded(body, 9);
  return Digit(digits[8]) == WeightedSum(digits, {256, 128, 64, 32, 16, 8, 4, 2}) % 11 % 10;
}

}  // namespace zerbal::validacion
