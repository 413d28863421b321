// Checks of tax identifiers: Spanish NIF of every kind and the VAT numbers of
// the EU member states plus Northern Ireland (XI).
//
// Every function is pure, thread-safe and total: any byte string, including
// empty, very long or non-ASCII text, gives true or false. Letters are
// compared without regard to ASCII case; bytes outside ASCII never match
// anything, so they make the identifier invalid.

#ifndef ZERBAL_REFERENCE_VALIDACION_VALIDACION_H_
#define ZERBAL_REFERENCE_VALIDACION_VALIDACION_H_

#include <string_view>

namespace zerbal::validacion {

// True when `text` is a valid Spanish NIF as stored: exactly 9 characters, no
// separators, no prefix, no surrounding spaces (callers trim):
//   DNI      8 digits + control letter (number mod 23);
//   NIE      X, Y or Z (read as 0, 1, 2) + 7 digits + control letter;
//   K, L, M  letter + 7 digits + control letter of the 7 digits;
//   entity   A B C D E F G H J N P Q R S U V W + 7 digits + control, which may
//            be written as the digit or as its letter (J A B C D E F G H I for
//            0..9) for every organisation letter; a wrong value is never valid.
// Lower-case letters are accepted and checked as their upper-case form.
//
// With `sin_letra` true, an 8-character identifier missing its control
// character is accepted too: 8 digits (DNI), X/Y/Z + 7 digits (NIE), K/L/M +
// 7 digits, or an organisation letter + 7 digits (entity). Nothing in those
// can be checked, so only their shape is. Complete 9-character identifiers
// are still checked in full; other lengths are never valid.
bool ValidaNifCif(std::string_view text, bool sin_letra);

// True when `text` is a valid Spanish NIF as people write it: surrounding
// whitespace trimmed, spaces, dots, dashes and slashes ignored, an optional
// leading "ES" prefix accepted once, then checked as ValidaNifCif(.., false).
bool ValidarNifEscrito(std::string_view text);

// True when `text` is a valid VAT number of `country`, a two-letter code of an
// EU member state ("EL" for Greece, with "GR" accepted as its alias; "ES"
// checks a Spanish NIF) or "XI" (Northern Ireland). Any other code is false.
//
// The number may carry the country's prefix (for Greece EL or GR) exactly
// once, before or after separators; a doubled prefix is invalid. Surrounding
// whitespace and the separators used for that country are ignored, as is case.
// A French number whose key is itself "FR" reads, unprefixed, as that key.
bool ValidarForeignNif(std::string_view text, std::string_view country);

// True when `text` is a valid VAT number written with its country prefix
// ("DE 136695976", "BE (0)468.561.072"); the prefix chooses the country as in
// ValidarForeignNif, and a number without a known prefix is false.
bool ValidarVat(std::string_view text);

}  // namespace zerbal::validacion

#endif  // ZERBAL_REFERENCE_VALIDACION_VALIDACION_H_
