// Finland: 8 digits, weighted sum divisible by 11.

#include "reference/validacion/digits.h"
#include "reference/validacion/vat_checks.h"

namespace zerbal::validacion {

bool CheckFI(std::string_view body) {
  if (body.size() != 8 || !AllDigits(body)) return false;
  return WeightedSum(body, {7, 9, 10, 5, 8, 4, 2, 1}) % 11 == 0;
}

}  // namespace zerbal::validacion
