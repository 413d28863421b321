#include "data/collation.h"

#include "base/text.h"

namespace zerbal::data {
namespace {

// The key a character sorts by. A byte that starts no valid sequence sorts
// after every character, by its own value, so that no two different texts
// ever compare equal through it.
char32_t SortKey(std::string_view text, size_t pos, size_t* size) {
  const auto byte = static_cast<unsigned char>(text[pos]);
  if (byte < 0x80) {
    *size = 1;
    return byte >= 'A' && byte <= 'Z' ? byte + 32 : byte;
  }
  const char32_t c = DecodeAt(text, pos, size);
  if (c == 0xFFFD && *size == 1) return 0x110000 + byte;
  return ToLower(c);
}

}  // namespace

int CompareFolded(std::string_view a, std::string_view b) {
  size_t i = 0;
  size_t j = 0;
  while (i < a.size() && j < b.size()) {
    size_t size_a = 1;
    size_t size_b = 1;
    const char32_t ka = SortKey(a, i, &size_a);
    const char32_t kb = SortKey(b, j, &size_b);
    if (ka != kb) return ka < kb ? -1 : 1;
    i += size_a;
    j += size_b;
  }
  if (i < a.size()) return 1;
  return j < b.size() ? -1 : 0;
}

}  // namespace zerbal::data
