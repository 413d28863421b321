#include "base/text.h"

#include <array>
#include <cstdint>
#include <cstring>

namespace zerbal {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

bool IsContinuation(unsigned char b) { return (b & 0xC0) == 0x80; }

// Byte length of the character at `pos`: 1 for ASCII without decoding.
size_t CharSize(std::string_view text, size_t pos) {
  if (static_cast<unsigned char>(text[pos]) < 0x80) return 1;
  size_t size = 1;
  DecodeAt(text, pos, &size);
  return size;
}

// Bytes from `pos` on that are ASCII (at most `max`), eight at a time where
// they can be.
size_t AsciiRun(std::string_view text, size_t pos, size_t max = SIZE_MAX) {
  const size_t limit = max < text.size() - pos ? pos + max : text.size();
  size_t end = pos;
  for (; end + 8 <= limit; end += 8) {
    uint64_t word;
    std::memcpy(&word, text.data() + end, 8);
    if (word & 0x8080808080808080ULL) break;
  }
  while (end < limit && static_cast<unsigned char>(text[end]) < 0x80) ++end;
  return end - pos;
}

// Byte offset of character `index` (0-based), or text.size() past the end.
size_t ByteOffset(std::string_view text, int64_t index) {
  size_t pos = 0;
  for (int64_t k = 0; k < index && pos < text.size();) {
    // Runs of ASCII go by at once: one byte, one character.
    const size_t ascii = AsciiRun(text, pos, static_cast<size_t>(index - k));
    if (ascii > 0) {
      pos += ascii;
      k += static_cast<int64_t>(ascii);
      continue;
    }
    pos += CharSize(text, pos);
    ++k;
  }
  return pos;
}

// Characters 0x80 to 0x9F of Windows-1252; the five unassigned bytes stand
// for the control characters of the same number.
constexpr std::array<char32_t, 32> kHighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

}  // namespace

char32_t DecodeAt(std::string_view text, size_t pos, size_t* size) {
  *size = 1;
  const auto b0 = static_cast<unsigned char>(text[pos]);
  if (b0 < 0x80) return b0;
  int extra;
  char32_t c;
  char32_t min;
  if ((b0 & 0xE0) == 0xC0) {
    extra = 1, c = b0 & 0x1F, min = 0x80;
  } else if ((b0 & 0xF0) == 0xE0) {
    extra = 2, c = b0 & 0x0F, min = 0x800;
  } else if ((b0 & 0xF8) == 0xF0) {
    extra = 3, c = b0 & 0x07, min = 0x10000;
  } else {
    return kReplacement;
  }
  if (pos + extra >= text.size()) return kReplacement;
  for (int k = 1; k <= extra; ++k) {
    const auto b = static_cast<unsigned char>(text[pos + k]);
    if (!IsContinuation(b)) return kReplacement;
    c = (c << 6) | (b & 0x3F);
  }
  if (c < min || c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF)) return kReplacement;
  *size = extra + 1;
  return c;
}

void AppendUtf8(std::string* out, char32_t c) {
  if (c < 0x80) {
    out->push_back(static_cast<char>(c));
  } else if (c < 0x800) {
    out->push_back(static_cast<char>(0xC0 | (c >> 6)));
    out->push_back(static_cast<char>(0x80 | (c & 0x3F)));
  } else if (c < 0x10000) {
    out->push_back(static_cast<char>(0xE0 | (c >> 12)));
    out->push_back(static_cast<char>(0x80 | ((c >> 6) & 0x3F)));
    out->push_back(static_cast<char>(0x80 | (c & 0x3F)));
  } else {
    out->push_back(static_cast<char>(0xF0 | (c >> 18)));
    out->push_back(static_cast<char>(0x80 | ((c >> 12) & 0x3F)));
    out->push_back(static_cast<char>(0x80 | ((c >> 6) & 0x3F)));
    out->push_back(static_cast<char>(0x80 | (c & 0x3F)));
  }
}


int64_t Len(std::string_view text) {
  int64_t n = 0;
  for (size_t pos = 0; pos < text.size();) {
    const size_t ascii = AsciiRun(text, pos);
    n += static_cast<int64_t>(ascii);
    pos += ascii;
    if (pos < text.size()) {
      pos += CharSize(text, pos);
      ++n;
    }
  }
  return n;
}

std::string Mid(std::string_view text, int64_t start, int64_t length) {
  if (start < 1) start = 1;
  const size_t from = ByteOffset(text, start - 1);
  std::string_view rest = text.substr(from);
  if (length < 0) return std::string(rest);
  return std::string(rest.substr(0, ByteOffset(rest, length)));
}

std::string Left(std::string_view text, int64_t length) {
  return std::string(text.substr(0, ByteOffset(text, length < 0 ? 0 : length)));
}

std::string Abridged(std::string_view text, int64_t length) {
  const size_t cut = ByteOffset(text, length < 0 ? 0 : length);
  return cut < text.size() ? std::string(text.substr(0, cut)) + "..." : std::string(text);
}

std::string Right(std::string_view text, int64_t length) {
  const int64_t total = Len(text);
  if (length >= total) return std::string(text);
  return Mid(text, total - (length < 0 ? 0 : length) + 1);
}

int64_t InStr(std::string_view text, std::string_view what, int64_t start) {
  if (start < 1) start = 1;
  const size_t from = ByteOffset(text, start - 1);
  if (from > text.size()) return 0;
  const size_t found = text.find(what, from);
  if (found == std::string_view::npos) return 0;
  return Len(text.substr(0, found)) + 1;
}

std::string FirstChar(std::string_view text) { return Left(text, 1); }

std::string RepeatChar(std::string_view fill, int64_t count) {
  if (count <= 0 || fill.empty()) return {};
  const size_t first = CharSize(fill, 0);
  if (first == 1) return std::string(static_cast<size_t>(count), fill[0]);
  const std::string one(fill.substr(0, first));
  std::string out;
  out.reserve(one.size() * static_cast<size_t>(count));
  for (int64_t k = 0; k < count; ++k) out += one;
  return out;
}

bool SameText(std::string_view a, std::string_view b) {
  size_t i = 0;
  size_t j = 0;
  while (i < a.size() && j < b.size()) {
    size_t size_a = 1;
    size_t size_b = 1;
    if (ToUpper(DecodeAt(a, i, &size_a)) != ToUpper(DecodeAt(b, j, &size_b))) return false;
    i += size_a;
    j += size_b;
  }
  return i == a.size() && j == b.size();
}

char32_t ToUpper(char32_t c) {
  if (c >= 'a' && c <= 'z') return c - 32;
  if (c < 0xE0) return c;
  if (c <= 0xFE) return c == 0xF7 ? c : c - 32;  // Latin-1 letters; 0xF7 is a sign
  if (c == 0xFF) return 0x178;
  // Latin Extended-A pairs: upper even, lower odd (0x139-0x148 and
  // 0x179-0x17E: upper odd, lower even); dotless i stays.
  if ((c >= 0x100 && c <= 0x137) || (c >= 0x14A && c <= 0x177)) {
    return (c % 2 == 1 && c != 0x131) ? c - 1 : c;
  }
  if ((c >= 0x139 && c <= 0x148) || (c >= 0x179 && c <= 0x17E)) {
    return c % 2 == 0 ? c - 1 : c;
  }
  return c;
}

char32_t ToLower(char32_t c) {
  if (c >= 'A' && c <= 'Z') return c + 32;
  if (c < 0xC0) return c;
  if (c <= 0xDE) return c == 0xD7 ? c : c + 32;
  if (c == 0x178) return 0xFF;
  if ((c >= 0x100 && c <= 0x137) || (c >= 0x14A && c <= 0x177)) {
    return (c % 2 == 0 && c != 0x130) ? c + 1 : c;
  }
  if ((c >= 0x139 && c <= 0x148) || (c >= 0x179 && c <= 0x17E)) {
    return c % 2 == 1 ? c + 1 : c;
  }
  return c;
}

uint8_t Windows1252Code(char32_t c) {
  if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) return static_cast<uint8_t>(c);
  for (size_t k = 0; k < kHighControls.size(); ++k) {
    if (kHighControls[k] == c) return static_cast<uint8_t>(0x80 + k);
  }
  return '?';
}

std::string Utf8ToWindows1252(std::string_view utf8) {
  std::string out;
  out.reserve(utf8.size());
  for (size_t pos = 0; pos < utf8.size();) {
    if (const size_t ascii = AsciiRun(utf8, pos); ascii > 0) {
      out.append(utf8.substr(pos, ascii));
      pos += ascii;
      continue;
    }
    size_t size = 1;
    out.push_back(static_cast<char>(Windows1252Code(DecodeAt(utf8, pos, &size))));
    pos += size;
  }
  return out;
}

std::string Windows1252ToUtf8(std::string_view bytes) {
  std::string out;
  out.reserve(bytes.size() + bytes.size() / 8);
  for (size_t pos = 0; pos < bytes.size();) {
    if (const size_t ascii = AsciiRun(bytes, pos); ascii > 0) {
      out.append(bytes.substr(pos, ascii));
      pos += ascii;
      continue;
    }
    const char ch = bytes[pos++];
    const auto b = static_cast<unsigned char>(ch);
    AppendUtf8(&out, (b >= 0x80 && b < 0xA0) ? kHighControls[b - 0x80] : char32_t{b});
  }
  return out;
}

}  // namespace zerbal
