// Character positions in UTF-8 text, and the single-byte code page.
//
// Wherever the system counts characters (lengths, Mid, fixed-width fields,
// padding and cutting), a character is one Unicode code point, never a byte:
// "Ñ" is one character. A byte that does not start a valid UTF-8 sequence
// counts as one character of its own, so no input can make these functions
// read out of bounds or lose bytes.
//
// These are the only functions that know about character positions.

#ifndef ZERBAL_BASE_TEXT_H_
#define ZERBAL_BASE_TEXT_H_

#include <cstdint>
#include <string>
#include <string_view>

namespace zerbal {

// Number of characters.
int64_t Len(std::string_view text);

// `length` characters from 1-based position `start` (to the end when length
// is negative); positions past the end give the empty text.
std::string Mid(std::string_view text, int64_t start, int64_t length = -1);
std::string Left(std::string_view text, int64_t length);
std::string Right(std::string_view text, int64_t length);

// `text` as a message quotes it: its first `length` characters and "..."
// when it has more.
std::string Abridged(std::string_view text, int64_t length);

// 1-based character position of the first `what` in `text` from character
// `start` on; 0 when absent.
int64_t InStr(std::string_view text, std::string_view what, int64_t start = 1);

// The first character of `text` as its own string (empty for empty text).
std::string FirstChar(std::string_view text);

// `count` copies of the first character of `fill` (nothing when `fill` is
// empty or count is not positive).
std::string RepeatChar(std::string_view fill, int64_t count);

// Decodes the character that starts at byte `pos`; sets `size` to its byte
// length. A byte that starts no valid sequence decodes as U+FFFD, size 1.
char32_t DecodeAt(std::string_view text, size_t pos, size_t* size);

// Appends the UTF-8 form of `c`.
void AppendUtf8(std::string* out, char32_t c);

// Whether the texts are equal but for the case of their letters.
bool SameText(std::string_view a, std::string_view b);

// Upper and lower case of one character (Latin letters, with and without
// accents; other characters are returned as they are).
char32_t ToUpper(char32_t c);
char32_t ToLower(char32_t c);

// The code of a character in the Windows-1252 code page; 63 ("?") for a
// character that the code page cannot represent.
uint8_t Windows1252Code(char32_t c);

// Whole-text conversions between UTF-8 and Windows-1252 (unrepresentable
// characters become "?").
std::string Utf8ToWindows1252(std::string_view utf8);
std::string Windows1252ToUtf8(std::string_view bytes);

}  // namespace zerbal

#endif  // ZERBAL_BASE_TEXT_H_
