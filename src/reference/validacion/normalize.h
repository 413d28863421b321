// Turning identifiers as people write them into the compact upper-case form
// that the checks read. ASCII only: other bytes are kept as they are, so they
// fail any check that follows.

#ifndef ZERBAL_REFERENCE_VALIDACION_NORMALIZE_H_
#define ZERBAL_REFERENCE_VALIDACION_NORMALIZE_H_

#include <string>
#include <string_view>

namespace zerbal::validacion {

inline char ToUpperAscii(char c) {
  return (c >= 'a' && c <= 'z') ? static_cast<char>(c - 'a' + 'A') : c;
}

// `text` without leading and trailing ASCII whitespace.
std::string_view TrimSpace(std::string_view text);

// `text` in upper case with every character of `separators` removed.
std::string Compact(std::string_view text, std::string_view separators);

// True when `text` begins with `prefix` (given in upper case), ignoring case.
bool StartsWithFolded(std::string_view text, std::string_view prefix);

}  // namespace zerbal::validacion

#endif  // ZERBAL_REFERENCE_VALIDACION_NORMALIZE_H_
