// Hungary: 8 digits, weighted sum divisible by 10.

#include "reference/validacion/digits.h"
#include "reference/validacion/vat_checks.h"

namespace zerbal::validacion {

bool CheckHU(std::string_view body) {
  if (body.size() != 8 || !AllDigits(body)) return false;
  return WeightedSum(body, {9, 7, 3, 1, 9, 7, 3, 1}) % 10 == 0;
}

}  // namespace zerbal::validacion
