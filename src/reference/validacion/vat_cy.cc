// Cyprus: 8 digits + check letter; never beginning with 12.

#include "reference/validacion/digits.h"
#include "reference/validacion/vat_checks.h"

namespace zerbal::validacion {

bool CheckCY(std::string_view body) {
  static constexpr int kOddPlaceValue[] = {1, 0, 5, 7, 9, 13, 15, 17, 19, 21};
  if (body.size() != 9 || !AllDigits(body.substr(0, 8))) return false;
  if (body.starts_with("12")) return false;
  int sum = 0;
  for (size_t i = 0; i < 8; ++i) {
    const int d = Digit(body[i]);
    sum += (i % 2 == 0) ? kOddPlaceValue[d] : d;  // Positions 1, 3, 5, 7 are converted.
  }
  return body[8] == 'A' + sum % 26;
}

}  // namespace zerbal::validacion
