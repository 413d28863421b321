// Estonia: 9 digits, weighted sum divisible by 10.

#include "reference/validacion/digits.h"
#include "reference/validacion/vat_checks.h"

namespace zerbal::validacion {

bool CheckEE(std::string_view body) {
  if (body.size() != 9 || !AllDigits(body)) return false;
  return WeightedSum(body, {3, 7, 1, 3, 7, 1, 3, 7, 1}) % 10 == 0;
}

}  // namespace zerbal::validacion
