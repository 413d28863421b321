// The module General: stateless helpers for reading amounts, formatting the
// fixed-width fields of the declaration file, and converting operation keys
// and country codes. (CargarArray and the apostrophe pair are in
// data/buffers.h.) Arguments that a helper changes are references.

#ifndef ZERBAL_REFERENCE_GENERAL_H_
#define ZERBAL_REFERENCE_GENERAL_H_

#include <cstdint>
#include <string>
#include <string_view>

#include "zerbal/variant.h"

namespace zerbal::General {

// The value as a number when its text is made only of digits and "-", else
// 0: empty and blank texts, "12.5", "1 000" and "abc" give 0; "0012" gives
// 12, "-42" gives -42, "--5" (no number) 0. Errors other than a type mismatch
// are raised with the description "General.BC", CR LF, and their own.
double BC(const Variant& value);

// Whether every character is a digit or "-" (the empty text is).
bool SoloDigitos(std::string_view text);

// The value with a mask of `width` copies of the first character of `fill`:
// with "0", a zero-filled whole number of at least `width` digits (7 in 4 is
// 0007; 12345 in 4 is 12345; a negative value gets a leading "-").
std::string FormatoNumero(double value, int16_t width, std::string_view fill);

// The text cut to `width` characters (the caller's variable receives the
// cut text) and padded on the right with the first character of `fill`.
std::string FormatoTexto(std::string& text, int16_t width, std::string_view fill);

// FormatoNumero of the absolute value.
std::string FormatoImporte(double value, int16_t width, std::string_view fill);

// For a negative value "N" in mode 0 and "-" in any other mode; "" otherwise.
std::string Signo(double value, int16_t mode);

// Operation keys of earlier years: A to E stay as given (case kept), F
// becomes "B", G becomes "A", anything else "".
std::string ConvertirClave(const std::string& key);

// A province-and-country field of the state layout as five characters: a
// province is trimmed and padded to 5; "99" followed by a two-letter country
// becomes "99" and the country's numeric code in 3 (the caller's `code`
// receives that numeric code).
std::string ConvertirProvPais(std::string& code);

// Mode 0: the two-letter code of a numeric one ("004" and "4" give "DE");
// any other mode: the numeric code, without leading zeros, of a two-letter
// one (exact case: "FR" gives "1", "fr" nothing). An empty or blank code is
// returned as it is; an unknown one gives one blank.
std::string CodigoPais(const std::string& code, int16_t mode);

}  // namespace zerbal::General

#endif  // ZERBAL_REFERENCE_GENERAL_H_
