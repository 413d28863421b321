// The country table of the declarations: two-letter codes and the tax
// agency's numeric codes, 222 rows, both columns unique.

#ifndef ZERBAL_REFERENCE_COUNTRY_CODES_H_
#define ZERBAL_REFERENCE_COUNTRY_CODES_H_

#include <cstdint>
#include <span>
#include <string_view>

namespace zerbal {

struct CountryCode {
  std::string_view letters;  // "DE"
  int32_t number;            // 4 (written 004 in a three-digit field)
};

std::span<const CountryCode> CountryCodes();

}  // namespace zerbal

#endif  // ZERBAL_REFERENCE_COUNTRY_CODES_H_
