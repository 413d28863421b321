#include "data/sql_lexer.h"

#include <array>
#include <cctype>
#include <cstdint>

#include "base/raise.h"
#include "data/sqlite.h"

namespace zerbal::data {
namespace {

// Classes of bytes, in the C locale whatever the program's is.
enum : uint8_t { kSpaceByte = 1, kDigitByte = 2, kWordByte = 4 };

constexpr std::array<uint8_t, 256> kByteClass = [] {
  std::array<uint8_t, 256> table{};
  for (int c : {' ', '\t', '\n', '\v', '\f', '\r'}) table[c] = kSpaceByte;
  for (int c = '0'; c <= '9'; ++c) table[c] = kDigitByte | kWordByte;
  for (int c = 'A'; c <= 'Z'; ++c) table[c] = table[c + 32] = kWordByte;
  table['_'] = kWordByte;
  for (int c = 0x80; c < 0x100; ++c) table[c] = kWordByte;  // letters beyond ASCII
  return table;
}();

bool IsSpace(char c) { return kByteClass[static_cast<unsigned char>(c)] & kSpaceByte; }
bool IsDigit(char c) { return kByteClass[static_cast<unsigned char>(c)] & kDigitByte; }
bool IsWordByte(char c) { return kByteClass[static_cast<unsigned char>(c)] & kWordByte; }

[[noreturn]] void Unclosed(std::string_view sql, size_t pos) {
  Raise(errc::kSyntaxError, sql.substr(pos, 40), kEngineSource);
}

}  // namespace

size_t ScanToken(std::string_view sql, size_t pos, Tok* kind) {
  const char c = sql[pos];
  const char next = pos + 1 < sql.size() ? sql[pos + 1] : '\0';
  auto until = [&](size_t from, char close, char close2) -> size_t {
    for (size_t k = from; k < sql.size(); ++k) {
      if (sql[k] == close && (close2 == '\0' || (k + 1 < sql.size() && sql[k + 1] == close2))) {
        return k + (close2 == '\0' ? 1 : 2) - pos;
      }
    }
    Unclosed(sql, pos);
  };
  auto run = [&](auto belongs) {
    size_t k = pos + 1;
    while (k < sql.size() && belongs(sql[k])) ++k;
    return k - pos;
  };
  if (IsWordByte(c) && !IsDigit(c)) return *kind = Tok::kWord, run(IsWordByte);
  if (IsSpace(c)) return *kind = Tok::kSpace, run(IsSpace);
  if (IsDigit(c) || (c == '.' && IsDigit(next))) {
    *kind = Tok::kNumber;
    size_t k = pos;
    while (k < sql.size()) {
      const bool exponent_sign = (sql[k] == '+' || sql[k] == '-') && k > pos &&
                                 (sql[k - 1] == 'e' || sql[k - 1] == 'E');
      if (!IsWordByte(sql[k]) && sql[k] != '.' && !exponent_sign) break;
      ++k;
    }
    return k - pos;
  }
  switch (c) {
    case '\'':
      *kind = Tok::kString;
      for (size_t k = pos + 1; k < sql.size(); ++k) {
        if (sql[k] != '\'') continue;
        if (k + 1 < sql.size() && sql[k + 1] == '\'') {
          ++k;
          continue;
        }
        return k + 1 - pos;
      }
      Unclosed(sql, pos);
    case '[': return *kind = Tok::kQuoted, until(pos + 1, ']', '\0');
    case '"':
    case '`': return *kind = Tok::kQuoted, until(pos + 1, c, '\0');
    case '-':
      if (next == '-') {
        *kind = Tok::kComment;
        const size_t end = sql.find('\n', pos);
        return (end == std::string_view::npos ? sql.size() : end) - pos;
      }
      *kind = Tok::kPunct;
      return next == '>' ? 2 : 1;
    case '/':
      if (next == '*') return *kind = Tok::kComment, until(pos + 2, '*', '/');
      break;
    case '?': return *kind = Tok::kParam, 1;
    case '<': return *kind = Tok::kPunct, (next == '>' || next == '=' || next == '<') ? 2 : 1;
    case '>': return *kind = Tok::kPunct, (next == '=' || next == '>') ? 2 : 1;
    case '!':
    case '=': return *kind = Tok::kPunct, next == '=' ? 2 : 1;
    case '|': return *kind = Tok::kPunct, next == '|' ? 2 : 1;
    default: break;
  }
  *kind = Tok::kPunct;
  return 1;
}

Tokens Tokenize(std::string_view sql) {
  Tokens tokens;
  tokens.reserve(sql.size() / 3);
  for (size_t pos = 0; pos < sql.size();) {
    Tok kind;
    const size_t len = ScanToken(sql, pos, &kind);
    tokens.push_back({kind, std::string(sql.substr(pos, len))});
    pos += len;
  }
  return tokens;
}

bool Is(const Tokens& t, size_t i, std::string_view upper) {
  if (i >= t.size() || (t[i].kind != Tok::kWord && t[i].kind != Tok::kPunct)) return false;
  const std::string& text = t[i].text;
  if (text.size() != upper.size()) return false;
  for (size_t k = 0; k < text.size(); ++k) {
    if (std::toupper(static_cast<unsigned char>(text[k])) != upper[k]) return false;
  }
  return true;
}

size_t Next(const Tokens& t, size_t i) {
  while (i < t.size() && (t[i].kind == Tok::kSpace || t[i].kind == Tok::kComment)) ++i;
  return i;
}

size_t Prev(const Tokens& t, size_t i) {
  while (i > 0) {
    --i;
    if (t[i].kind != Tok::kSpace && t[i].kind != Tok::kComment) return i;
  }
  return std::string::npos;
}

std::string StringValue(std::string_view token) {
  std::string value;
  value.reserve(token.size());
  for (size_t k = 1; k + 1 < token.size(); ++k) {
    value.push_back(token[k]);
    if (token[k] == '\'') ++k;
  }
  return value;
}

}  // namespace zerbal::data
