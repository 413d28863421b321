// Conversions of the language runtime, with its rules and error numbers.
//
// Numbers as text use one invariant form: decimal point ".", no digit
// grouping, the shortest text that reads back to the same double with at most
// 15 significant digits, no trailing ".0" (1234, 12.5, -0.5). Reading text
// accepts that form with surrounding blanks; anything else is a type mismatch.
//
// Errors: Null where a value is needed raises 94; an unconvertible text or an
// array raises 13; a value out of the target's range raises 6. Whole-number
// conversions round halves to even (2.5 gives 2, 3.5 gives 4).

#ifndef ZERBAL_BASE_CONVERT_H_
#define ZERBAL_BASE_CONVERT_H_

#include <cstdint>
#include <string>
#include <string_view>

#include "zerbal/variant.h"

namespace zerbal {

// The invariant text of a number; raises 6 for infinities and NaN.
std::string NumberText(double value);

// Reads the invariant form ("-12.5", " 7 ", "1e3"); false when `text` is not
// a number, raises 6 when it is one too large for a double.
bool ParseNumber(std::string_view text, double* value);

std::string CStr(const Variant& value);
int16_t CInt(const Variant& value);
int32_t CLng(const Variant& value);
uint8_t CByte(const Variant& value);
double CDbl(const Variant& value);
bool CBool(const Variant& value);

// The number at the start of `text`, as the runtime's Val reads it: blanks,
// tabs and line feeds are skipped anywhere, reading stops at the first
// character that cannot continue a number, and no number gives 0.
// "12abc" gives 12, "1 000" gives 1000, "&H1F" gives 31.
double Val(std::string_view text);

// Whether CDbl would succeed: Empty, numbers, booleans and numeric texts.
bool IsNumeric(const Variant& value);

// Trim removes blanks (the space character only) at both ends.
std::string Trim(std::string_view text);
std::string LTrim(std::string_view text);
std::string RTrim(std::string_view text);
std::string UCase(std::string_view text);
std::string LCase(std::string_view text);

// Formats a number with a digit mask: "0" is a digit always written, "#" a
// digit written only when the number has one there, "." the decimal point;
// other characters are written as they stand. Digits beyond the mask's
// integer places are written in full; halves round away from zero; a
// negative number gets a leading "-". Format(7, "0000") is "0007",
// Format(12345, "00") is "12345". A text that is not a number is returned
// unchanged (so the empty text gives the empty text); Null raises 94.
std::string Format(const Variant& value, std::string_view mask);

}  // namespace zerbal

#endif  // ZERBAL_BASE_CONVERT_H_
