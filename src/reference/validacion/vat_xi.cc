// Northern Ireland (United Kingdom rules): 9 digits, 12 with a branch, or the
// government department (GD, below 500) and health authority (HA, 500 up) forms.

#include "reference/validacion/digits.h"
#include "reference/validacion/vat_checks.h"

namespace zerbal::validacion {
namespace {

bool IsStandardNumber(std::string_view d) {
  const int r = WeightedSum(d, {8, 7, 6, 5, 4, 3, 2, 10, 1}) % 97;
  // Numbers from 100 on may also use the newer scheme (remainder 42 or 55).
  if (ToNumber(d.substr(0, 3)) >= 100) return r == 0 || r == 42 || r == 55;
  return r == 0;
}

bool IsDepartmentNumber(std::string_view kind, std::string_view nnn) {
  if (!AllDigits(nnn)) return false;
  const uint64_t n = ToNumber(nnn);
  return (kind == "GD" && n < 500) || (kind == "HA" && n >= 500);
}

}  // namespace

bool CheckXI(std::string_view body) {
  if ((body.size() == 9 || body.size() == 12) && AllDigits(body)) return IsStandardNumber(body);
  if (body.size() == 5) return IsDepartmentNumber(body.substr(0, 2), body.substr(2));
  if (body.size() != 11 || body.substr(2, 4) != "8888") return false;
  const std::string_view nnn = body.substr(6, 3);
  const std::string_view cc = body.substr(9);
  return IsDepartmentNumber(body.substr(0, 2), nnn) && AllDigits(cc) &&
         ToNumber(nnn) % 97 == ToNumber(cc);
}

}  // namespace zerbal::validacion
