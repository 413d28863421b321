// Ireland: 8 or 9 characters, mod 23 check letter, in the current layout
// (7 digits) or the old one (second character a letter, + or *).

#include "reference/validacion/digits.h"
#include "reference/validacion/vat_checks.h"

namespace zerbal::validacion {
namespace {

// Check letters run W, A, B, ..., V for 0 .. 22.
bool IsCheckLetter(char c) { return c >= 'A' && c <= 'W'; }
int LetterNumber(char c) { return c == 'W' ? 0 : c - 'A' + 1; }
char LetterFor(int n) { return n == 0 ? 'W' : static_cast<char>('A' + n - 1); }

bool IsOldSecond(char c) { return IsUpperLetter(c) || c == '+' || c == '*'; }

}  // namespace

bool CheckIE(std::string_view body) {
  if (body.size() != 8 && body.size() != 9) return false;
  if (!IsDigit(body[0]) || !AllDigits(body.substr(2, 5)) || !IsCheckLetter(body[7])) return false;
  const bool has_ninth = body.size() == 9;
  if (has_ninth && !IsCheckLetter(body[8])) return false;
  int sum = 0;
  if (IsDigit(body[1])) {
    sum = WeightedSum(body, {8, 7, 6, 5, 4, 3, 2}) + (has_ninth ? 9 * LetterNumber(body[8]) : 0);
  } else if (IsOldSecond(body[1])) {
    // Old layout: digits 3-7 shifted right, the first digit moved to the end.
    const char digits[] = {'0', body[2], body[3], body[4], body[5], body[6], body[0]};
    sum = WeightedSum(std::string_view(digits, 7), {8, 7, 6, 5, 4, 3, 2});
  } else {
    return false;
  }
  return body[7] == LetterFor(sum % 23);
}

}  // namespace zerbal::validacion
