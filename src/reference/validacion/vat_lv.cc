// Latvia: 11 digits; legal entities (first digit 4 or more) or personal codes,
// older ones beginning with the birth date DDMMYY.

#include "reference/validacion/digits.h"
#include "reference/validacion/vat_checks.h"

namespace zerbal::validacion {
namespace {

bool PersonalCheckDigitMatches(std::string_view d) {
  const int s = WeightedSum(d, {10, 5, 8, 4, 2, 1, 6, 3, 7, 9});
  return Digit(d[10]) == (1 + s) % 11 % 10;
}

// d7 is the century: 0 for the 1800s, 1 for the 1900s, 2 for the 2000s.
bool HasBirthDate(std::string_view d) {
  const int year = 1800 + 100 * Digit(d[6]) + static_cast<int>(ToNumber(d.substr(4, 2)));
  return IsValidDate(year, static_cast<int>(ToNumber(d.substr(2, 2))),
                     static_cast<int>(ToNumber(d.substr(0, 2))));
}

}  // namespace

bool CheckLV(std::string_view body) {
  if (body.size() != 11 || !AllDigits(body)) return false;
  if (body[0] >= '4') {
    return WeightedSum(body, {9, 1, 4, 8, 3, 10, 2, 5, 7, 6, 1}) % 11 == 3;
  }
  // Personal codes issued since 2017 begin with 32 and carry no date.
  if (!body.starts_with("32") && !HasBirthDate(body)) return false;
  return PersonalCheckDigitMatches(body);
}

}  // namespace zerbal::validacion
