// Denmark: 8 digits not beginning with 0, weighted sum divisible by 11.

#include "reference/validacion/digits.h"
#include "reference/validacion/vat_checks.h"

namespace zerbal::validacion {

bool CheckDK(std::string_view body) {
  if (body.size() != 8 || !AllDigits(body) || body[0] == '0') return false;
  return WeightedSum(body, {2, 7, 6, 5, 4, 3, 2, 1}) % 11 == 0;
}

}  // namespace zerbal::validacion
