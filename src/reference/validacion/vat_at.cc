// Austria: U + 8 digits; Luhn-style total over d1..d7, d8 = (6 - S) mod 10.

#include "reference/validacion/digits.h"
#include "reference/validacion/vat_checks.h"

namespace zerbal::validacion {

bool CheckAT(std::string_view body) {
  if (body.size() != 9 || body[0] != 'U' || !AllDigits(body.substr(1))) return false;
  const int s = LuhnTotal(body.substr(1, 7));  // d2, d4, d6 doubled, d1 .. d7 not.
  return Digit(body[8]) == ((6 - s % 10) + 10) % 10;
}

}  // namespace zerbal::validacion
