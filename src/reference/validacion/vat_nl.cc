// Netherlands: 9 digits + B + 2 digits, fewer leading digits padded with 0.
// Valid by the 11-test or, for sole traders' numbers, by mod 97.

#include <string>

#include "reference/validacion/digits.h"
#include "reference/validacion/vat_checks.h"

namespace zerbal::validacion {
namespace {

bool PassesElevenTest(std::string_view d) {
  return (WeightedSum(d, {9, 8, 7, 6, 5, 4, 3, 2}) - Digit(d[8])) % 11 == 0;
}

// "NL" + number with letters as numbers (N = 23, L = 21, B = 11), mod 97 = 1.
bool PassesMod97(std::string_view digits, std::string_view suffix) {
  const std::string text = "2321" + std::string(digits) + "11" + std::string(suffix);
  return Mod97(text) == 1;
}

}  // namespace

bool CheckNL(std::string_view body) {
  if (body.size() < 4 || body.size() > 12 || body[body.size() - 3] != 'B') return false;
  const std::string_view suffix = body.substr(body.size() - 2);
  const std::string digits = ZeroPadded(body.substr(0, body.size() - 3), 9);
  if (!AllDigits(digits) || !AllDigits(suffix)) return false;
  if (ToNumber(digits) == 0 || suffix == "00") return false;
  return PassesElevenTest(digits) || PassesMod97(digits, suffix);
}

}  // namespace zerbal::validacion
