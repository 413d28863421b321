// Italy: 11 digits passing Luhn, company number not zero, known office code.

#include "reference/validacion/digits.h"
#include "reference/validacion/vat_checks.h"

namespace zerbal::validacion {
namespace {

bool IsOfficeCode(uint64_t code) {
  return (code >= 1 && code <= 100) || code == 120 || code == 121 || code == 888 || code == 999;
}

}  // namespace

bool CheckIT(std::string_view body) {
  if (body.size() != 11 || !AllDigits(body)) return false;
  if (ToNumber(body.substr(0, 7)) == 0 || !IsOfficeCode(ToNumber(body.substr(7, 3)))) return false;
  return PassesLuhn(body);
}

}  // namespace zerbal::validacion
