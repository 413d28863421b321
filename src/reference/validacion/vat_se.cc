// Sweden: 10-digit organisation number passing Luhn, followed by 01.

#include "reference/validacion/digits.h"
#include "reference/validacion/vat_checks.h"

namespace zerbal::validacion {

bool CheckSE(std::string_view body) {
  if (body.size() != 12 || !AllDigits(body) || !body.ends_with("01")) return false;
  return PassesLuhn(body.substr(0, 10));
}

}  // namespace zerbal::validacion
