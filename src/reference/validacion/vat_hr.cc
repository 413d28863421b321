// Croatia: 11 digits, ISO 7064 MOD 11,10.

#include "reference/validacion/digits.h"
#include "reference/validacion/vat_checks.h"

namespace zerbal::validacion {

bool CheckHR(std::string_view body) {
  return body.size() == 11 && AllDigits(body) && PassesMod11_10(body);
}

}  // namespace zerbal::validacion
