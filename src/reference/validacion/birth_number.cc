// Czech and Slovak birth number (rodné číslo).

#include "reference/validacion/digits.h"
#include "reference/validacion/vat_checks.h"

namespace zerbal::validacion {
namespace {

// Century of a birth number: 9-digit numbers were issued up to 1953 only.
int BirthYear(int yy, size_t length) {
  if (length == 10) return yy >= 54 ? 1900 + yy : 2000 + yy;
  if (yy <= 53) return 1900 + yy;
  if (yy >= 80) return 1800 + yy;
  return 0;
}

}  // namespace

bool IsBirthNumber(std::string_view d) {
  if ((d.size() != 9 && d.size() != 10) || !AllDigits(d)) return false;
  const int year = BirthYear(static_cast<int>(ToNumber(d.substr(0, 2))), d.size());
  // Women add 50 to the month, overflow series add 20.
  const int month = static_cast<int>(ToNumber(d.substr(2, 2))) % 50 % 20;
  const int day = static_cast<int>(ToNumber(d.substr(4, 2)));
  if (year == 0 || !IsValidDate(year, month, day)) return false;
  return d.size() == 9 || static_cast<int>(ToNumber(d.substr(0, 9)) % 11 % 10) == Digit(d[9]);
}

}  // namespace zerbal::validacion
