// Belgium: 10 digits (9 get a leading 0; a leading "(0)" is that 0), d1 0 or 1,
// first eight digits plus last two divisible by 97.

#include <string>

#include "reference/validacion/digits.h"
#include "reference/validacion/vat_checks.h"

namespace zerbal::validacion {

bool CheckBE(std::string_view body) {
  std::string digits;
  if (body.starts_with("(0)")) {
    digits = "0";
    body.remove_prefix(3);
  }
  digits.append(body);
  if (digits.size() == 9) digits = ZeroPadded(digits, 10);
  if (digits.size() != 10 || !AllDigits(digits)) return false;
  if (digits[0] > '1' || ToNumber(digits) == 0) return false;
  return (ToNumber(digits.substr(0, 8)) + ToNumber(digits.substr(8))) % 97 == 0;
}

}  // namespace zerbal::validacion
