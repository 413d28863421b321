// Germany: 9 digits not beginning with 0, ISO 7064 MOD 11,10.

#include "reference/validacion/digits.h"
#include "reference/validacion/vat_checks.h"

namespace zerbal::validacion {

bool CheckDE(std::string_view body) {
  return body.size() == 9 && AllDigits(body) && body[0] != '0' && PassesMod11_10(body);
}

}  // namespace zerbal::validacion
