// Luxembourg: 8 digits, the first six mod 89 give the last two.

#include "reference/validacion/digits.h"
#include "reference/validacion/vat_checks.h"

namespace zerbal::validacion {

bool CheckLU(std::string_view body) {
  if (body.size() != 8 || !AllDigits(body)) return false;
  return ToNumber(body.substr(0, 6)) % 89 == ToNumber(body.substr(6));
}

}  // namespace zerbal::validacion
