// Malta: 8 digits not beginning with 0, weighted sum divisible by 37.

#include "reference/validacion/digits.h"
#include "reference/validacion/vat_checks.h"

namespace zerbal::validacion {

bool CheckMT(std::string_view body) {
  if (body.size() != 8 || !AllDigits(body) || body[0] == '0') return false;
  return WeightedSum(body, {3, 4, 6, 7, 8, 9, 10, 1}) % 37 == 0;
}

}  // namespace zerbal::validacion
