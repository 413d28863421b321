// Poland: 10 digits; weighted sum of the first nine mod 11 is the last (10 never is).

#include "reference/validacion/digits.h"
#include "reference/validacion/vat_checks.h"

namespace zerbal::validacion {

bool CheckPL(std::string_view body) {
  if (body.size() != 10 || !AllDigits(body)) return false;
  return WeightedSum(body, {6, 5, 7, 2, 3, 4, 5, 6, 7}) % 11 == Digit(body[9]);
}

}  // namespace zerbal::validacion
