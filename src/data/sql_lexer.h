// The tokens of the SQL that the system builds, and small helpers to walk
// them. Text between apostrophes is one token whatever it holds.

#ifndef ZERBAL_DATA_SQL_LEXER_H_
#define ZERBAL_DATA_SQL_LEXER_H_

#include <string>
#include <string_view>
#include <vector>

namespace zerbal::data {

enum class Tok {
  kSpace,    // blanks
  kComment,  // "--" to the end of the line, or "/* ... */"
  kWord,     // a name or keyword
  kQuoted,   // a name in [brackets], "double quotes" or `backquotes`
  kString,   // 'text', '' inside standing for one apostrophe
  kNumber,   // digits, with a point or exponent
  kPunct,    // an operator or punctuation, one or two characters
  kParam,    // a value lifted out of the statement ("?")
};

struct Token {
  Tok kind;
  std::string text;
};

using Tokens = std::vector<Token>;

// Length of the token that starts at byte `pos` of `sql`, and its kind. A
// text, name or comment that is not closed raises 3075: nothing after it
// may be taken for a value.
size_t ScanToken(std::string_view sql, size_t pos, Tok* kind);

// Splits `sql` into tokens (see ScanToken); a "?" is a kParam.
Tokens Tokenize(std::string_view sql);

// Whether token `i` is the keyword or punctuation `upper` (ASCII, any case).
bool Is(const Tokens& t, size_t i, std::string_view upper);

// Index of the first token at or after `i` that is not blank; t.size() if none.
size_t Next(const Tokens& t, size_t i);

// Index of the last non-blank token before `i`; npos if none.
size_t Prev(const Tokens& t, size_t i);

// The value of a 'text' token: without its apostrophes, '' as one.
std::string StringValue(std::string_view token);

}  // namespace zerbal::data

#endif  // ZERBAL_DATA_SQL_LEXER_H_
