// Slovenia: 8 digits not beginning with 0; a check value of 11 has no valid number.

#include "reference/validacion/digits.h"
#include "reference/validacion/vat_checks.h"

namespace zerbal::validacion {

bool CheckSI(std::string_view body) {
  if (body.size() != 8 || !AllDigits(body) || body[0] == '0') return false;
  const int k = 11 - WeightedSum(body, {8, 7, 6, 5, 4, 3, 2}) % 11;
  return k != 11 && Digit(body[7]) == k % 10;
}

}  // namespace zerbal::validacion
