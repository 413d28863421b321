// Slovakia: 10 digits; a birth number, or else a number divisible by 11 with
// d1 not 0 and d3 in 2, 3, 4, 7, 8, 9.

#include "reference/validacion/digits.h"
#include "reference/validacion/vat_checks.h"

namespace zerbal::validacion {

bool CheckSK(std::string_view body) {
  if (body.size() != 10 || !AllDigits(body)) return false;
  if (IsBirthNumber(body)) return true;
  const char third = body[2];
  const bool third_ok = (third >= '2' && third <= '4') || (third >= '7' && third <= '9');
  return body[0] != '0' && third_ok && ToNumber(body) % 11 == 0;
}

}  // namespace zerbal::validacion
