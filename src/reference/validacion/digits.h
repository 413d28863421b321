// Arithmetic on strings of decimal digits, shared by every identifier check.
//
// Callers pass ASCII text; functions that read digit values require every
// character to be '0'..'9' (check with AllDigits first). None of them reads
// outside the view it is given.

#ifndef ZERBAL_REFERENCE_VALIDACION_DIGITS_H_
#define ZERBAL_REFERENCE_VALIDACION_DIGITS_H_

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

namespace zerbal::validacion {

inline bool IsDigit(char c) { return c >= '0' && c <= '9'; }
inline bool IsUpperLetter(char c) { return c >= 'A' && c <= 'Z'; }
inline int Digit(char c) { return c - '0'; }

// True when `text` is non-empty and made of ASCII digits only.
bool AllDigits(std::string_view text);

// `text` with '0's prepended up to `width` characters (as it is when longer).
std::string ZeroPadded(std::string_view text, size_t width);

// The value of up to 19 digits.
uint64_t ToNumber(std::string_view digits);

// w1·d1 + w2·d2 + ..., pairing from the left; stops at the shorter of the two.
int WeightedSum(std::string_view digits, std::initializer_list<int> weights);

// Luhn total of the whole string read from the right: the rightmost digit as
// it is, the next doubled (minus 9 above 9), and so on alternately.
int LuhnTotal(std::string_view digits);
bool PassesLuhn(std::string_view digits);
// The digit that, appended to `body`, makes it pass the Luhn test.
int LuhnCheckDigit(std::string_view body);

// ISO 7064 MOD 11,10 over a string whose last digit is the check digit.
bool PassesMod11_10(std::string_view digits);

// The remainder of the (arbitrarily long) decimal number `digits` divided by 97.
int Mod97(std::string_view digits);

// True when the Gregorian calendar has that day.
bool IsValidDate(int year, int month, int day);

}  // namespace zerbal::validacion

#endif  // ZERBAL_REFERENCE_VALIDACION_DIGITS_H_
