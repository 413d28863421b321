#include "data/sql_lexer.h"

#include <cctype>

#include "base/raise.h"
#include "data/sqlite.h"

namespace zerbal::data {
namespace {

bool IsSpace(char c) { return std::isspace(static_cast<unsigned char>(c)) != 0; }
bool IsDigit(char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; }

bool IsWordByte(char c) {
  const auto u = static_cast<unsigned char>(c);
  return std::isalnum(u) || c == '_' || u >= 0x80;
}

[[noreturn]] void Unclosed(std::string_view sql, size_t pos) {
  Raise(errc::kSyntaxError, sql.substr(pos, 40), kEngineSource);
}

// Length of the token that starts at `pos`, and its kind.
size_t Scan(std::string_view sql, size_t pos, Tok* kind) {
  const char c = sql[pos];
  auto until = [&](size_t from, std::string_view close) -> size_t {
    const size_t end = sql.find(close, from);
    if (end == std::string_view::npos) Unclosed(sql, pos);
    return end + close.size() - pos;
  };
  auto run = [&](auto belongs) {
    size_t k = pos;
    while (k < sql.size() && belongs(sql[k])) ++k;
    return k - pos;
  };
  if (IsSpace(c)) return *kind = Tok::kSpace, run(IsSpace);
  if (sql.substr(pos, 2) == "--") {
    *kind = Tok::kComment;
    const size_t end = sql.find('\n', pos);
    return (end == std::string_view::npos ? sql.size() : end) - pos;
  }
  if (sql.substr(pos, 2) == "/*") return *kind = Tok::kComment, until(pos + 2, "*/");
  if (c == '\'') {
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
  }
  if (c == '[') return *kind = Tok::kQuoted, until(pos + 1, "]");
  if (c == '"' || c == '`') return *kind = Tok::kQuoted, until(pos + 1, std::string_view(&c, 1));
  if (IsDigit(c) || (c == '.' && pos + 1 < sql.size() && IsDigit(sql[pos + 1]))) {
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
  if (IsWordByte(c)) return *kind = Tok::kWord, run(IsWordByte);
  *kind = Tok::kPunct;
  static constexpr std::string_view kPairs[] = {"<>", "<=", ">=", "!=", "==", "||", "<<", ">>",
                                                "->"};
  for (std::string_view pair : kPairs) {
    if (sql.substr(pos, 2) == pair) return 2;
  }
  return 1;
}

}  // namespace

Tokens Tokenize(std::string_view sql) {
  Tokens tokens;
  tokens.reserve(sql.size() / 3);
  for (size_t pos = 0; pos < sql.size();) {
    Tok kind;
    const size_t len = Scan(sql, pos, &kind);
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
