#include "data/dialect.h"

#include <cctype>
#include <vector>

#include "base/convert.h"
#include "base/raise.h"
#include "data/sqlite.h"

namespace zerbal::data {
namespace {

enum class Tok { kSpace, kWord, kQuoted, kString, kNumber, kPunct };

struct Token {
  Tok kind;
  std::string text;
};

using Tokens = std::vector<Token>;

bool IsWordByte(char c) {
  const auto u = static_cast<unsigned char>(c);
  return std::isalnum(u) || c == '_' || u >= 0x80;
}

// Length of the token that starts at `pos`, and its kind.
size_t Scan(std::string_view sql, size_t pos, Tok* kind) {
  const char c = sql[pos];
  auto until = [&](size_t from, std::string_view close) {
    const size_t end = sql.find(close, from);
    return (end == std::string_view::npos ? sql.size() : end + close.size()) - pos;
  };
  if (std::isspace(static_cast<unsigned char>(c))) {
    *kind = Tok::kSpace;
    size_t k = pos;
    while (k < sql.size() && std::isspace(static_cast<unsigned char>(sql[k]))) ++k;
    return k - pos;
  }
  if (sql.substr(pos, 2) == "--") return *kind = Tok::kSpace, until(pos, "\n");
  if (sql.substr(pos, 2) == "/*") return *kind = Tok::kSpace, until(pos + 2, "*/");
  if (c == '\'') {
    *kind = Tok::kString;
    size_t k = pos + 1;
    while (k < sql.size()) {
      if (sql[k] == '\'' && (k + 1 >= sql.size() || sql[k + 1] != '\'')) return k + 1 - pos;
      k += sql[k] == '\'' ? 2 : 1;
    }
    return sql.size() - pos;
  }
  if (c == '[') return *kind = Tok::kQuoted, until(pos + 1, "]");
  if (c == '"' || c == '`') return *kind = Tok::kQuoted, until(pos + 1, std::string_view(&c, 1));
  if (std::isdigit(static_cast<unsigned char>(c))) {
    *kind = Tok::kNumber;
    size_t k = pos;
    while (k < sql.size() && (IsWordByte(sql[k]) || sql[k] == '.')) ++k;
    return k - pos;
  }
  if (IsWordByte(c)) {
    *kind = Tok::kWord;
    size_t k = pos;
    while (k < sql.size() && IsWordByte(sql[k])) ++k;
    return k - pos;
  }
  *kind = Tok::kPunct;
  static constexpr std::string_view kPairs[] = {"<>", "<=", ">=", "!=", "==", "||", "<<", ">>"};
  for (std::string_view pair : kPairs) {
    if (sql.substr(pos, 2) == pair) return 2;
  }
  return 1;
}

Tokens Tokenize(std::string_view sql) {
  Tokens tokens;
  for (size_t pos = 0; pos < sql.size();) {
    Tok kind;
    const size_t len = Scan(sql, pos, &kind);
    tokens.push_back({kind, std::string(sql.substr(pos, len))});
    pos += len;
  }
  return tokens;
}

// Keywords are ASCII: compare without building an upper-case copy.
bool SameWord(std::string_view text, std::string_view upper) {
  if (text.size() != upper.size()) return false;
  for (size_t k = 0; k < text.size(); ++k) {
    if (std::toupper(static_cast<unsigned char>(text[k])) != upper[k]) return false;
  }
  return true;
}

bool Is(const Tokens& t, size_t i, std::string_view upper_word) {
  return i < t.size() && (t[i].kind == Tok::kWord || t[i].kind == Tok::kPunct) &&
         SameWord(t[i].text, upper_word);
}

// Index of the first token at or after `i` that is not blank; t.size() if none.
size_t Next(const Tokens& t, size_t i) {
  while (i < t.size() && t[i].kind == Tok::kSpace) ++i;
  return i;
}

// Index of the last non-blank token before `i`; npos if none.
size_t Prev(const Tokens& t, size_t i) {
  while (i > 0) {
    if (t[--i].kind != Tok::kSpace) return i;
  }
  return std::string::npos;
}

// Index of the token that ends the SELECT at `i`: the ")" closing the
// parenthesis it sits in, a ";" or the end.
size_t ScopeEnd(const Tokens& t, size_t i) {
  int depth = 0;
  for (size_t k = i + 1; k < t.size(); ++k) {
    if (t[k].kind != Tok::kPunct) continue;
    if (t[k].text == "(") ++depth;
    if (t[k].text == ")" && depth-- == 0) return k;
    if (t[k].text == ";" && depth == 0) return k;
  }
  return t.size();
}

void RewriteTop(Tokens& t) {
  for (size_t i = 0; i < t.size(); ++i) {
    if (!Is(t, i, "SELECT")) continue;
    size_t top = Next(t, i + 1);
    if (Is(t, top, "DISTINCT") || Is(t, top, "ALL")) top = Next(t, top + 1);
    if (!Is(t, top, "TOP")) continue;
    const size_t count = Next(t, top + 1);
    if (count >= t.size() || t[count].kind != Tok::kNumber) continue;
    const std::string n = t[count].text;
    t.erase(t.begin() + top, t.begin() + count + 1);
    t.insert(t.begin() + ScopeEnd(t, i), {{Tok::kSpace, " "}, {Tok::kWord, "LIMIT " + n}});
  }
}

// The name that a select-list item gives its column.
std::string ItemName(const Tokens& t, size_t begin, size_t end) {
  const size_t last = Prev(t, end);
  if (last == std::string::npos || last < begin) Raise(errc::kSyntaxError, {}, kEngineSource);
  const size_t before = Prev(t, last);
  const bool named = t[last].kind == Tok::kWord || t[last].kind == Tok::kQuoted;
  const bool alone = before == std::string::npos || before < begin;
  if (named && (alone || Is(t, before, "AS") || Is(t, before, "."))) return t[last].text;
  Raise(errc::kSyntaxError, "INSERT INTO ... SELECT needs a name for every selected column",
        kEngineSource);
}

void AddInsertColumns(Tokens& t) {
  const size_t insert = Next(t, 0);
  const size_t into = Next(t, insert + 1);
  if (!Is(t, insert, "INSERT") || !Is(t, into, "INTO")) return;
  const size_t table = Next(t, into + 1);
  size_t select = Next(t, table + 1);
  if (!Is(t, select, "SELECT")) return;
  size_t begin = Next(t, select + 1);
  if (Is(t, begin, "DISTINCT") || Is(t, begin, "ALL")) begin = Next(t, begin + 1);
  std::string names;
  int depth = 0;
  for (size_t k = begin; k < t.size(); ++k) {
    const bool at_top = depth == 0;
    if (t[k].text == "(") ++depth;
    if (t[k].text == ")") --depth;
    const bool from = at_top && Is(t, k, "FROM");
    if (from || k + 1 == t.size() || (at_top && t[k].text == ",")) {
      const size_t end = (from || t[k].text == ",") ? k : k + 1;
      names += (names.empty() ? "" : ", ") + ItemName(t, begin, end);
      begin = k + 1;
      if (from) break;
    }
  }
  t.insert(t.begin() + table + 1, {Tok::kPunct, " (" + names + ")"});
}

bool StartsTerm(const Tokens& t, size_t i) {
  static constexpr std::string_view kBefore[] = {"WHERE", "AND", "OR", "NOT", "ON", "HAVING",
                                                 "WHEN", "THEN", "ELSE", "(", ","};
  if (i == std::string::npos) return true;
  for (std::string_view word : kBefore) {
    if (Is(t, i, word)) return true;
  }
  return false;
}

bool EndsTerm(const Tokens& t, size_t i) {
  static constexpr std::string_view kAfter[] = {"AND", "OR", ")", "ORDER", "GROUP", ";",
                                                "LIMIT", "UNION"};
  if (i >= t.size()) return true;
  for (std::string_view word : kAfter) {
    if (Is(t, i, word)) return true;
  }
  return false;
}

std::string Quote(std::string_view text) {
  std::string out = "'";
  for (char c : text) out += c == '\'' ? std::string("''") : std::string(1, c);
  return out + "'";
}

// The range that holds every text starting with `prefix` in the engine's
// case-blind order; empty when there is none to give.
bool PrefixRange(std::string_view literal, std::string* low, std::string* high) {
  std::string pattern;
  for (size_t k = 1; k + 1 < literal.size(); ++k) {
    pattern.push_back(literal[k]);
    if (literal[k] == '\'') ++k;
  }
  const size_t stop = pattern.find_first_of("*?#[");
  *low = pattern.substr(0, stop);
  if (low->empty()) return false;
  for (char c : *low) {
    if (static_cast<unsigned char>(c) >= 0x7F || c < 0x20) return false;
  }
  *high = *low;
  high->back() = static_cast<char>(std::tolower(static_cast<unsigned char>(high->back())) + 1);
  return true;
}

void AddLikeRanges(Tokens& t, const IndexedTextColumns& indexed) {
  for (size_t i = 0; i < t.size(); ++i) {
    if (!Is(t, i, "LIKE")) continue;
    const size_t column = Prev(t, i);
    const size_t literal = Next(t, i + 1);
    if (column == std::string::npos || t[column].kind != Tok::kWord || Is(t, column, "NOT") ||
        literal >= t.size() || t[literal].kind != Tok::kString) {
      continue;
    }
    size_t begin = column;
    const size_t dot = Prev(t, column);
    if (Is(t, dot, ".") && dot > 0 && t[dot - 1].kind == Tok::kWord) begin = dot - 1;
    std::string low, high;
    if (!StartsTerm(t, Prev(t, begin)) || !EndsTerm(t, Next(t, literal + 1)) ||
        indexed.find(LCase(t[column].text)) == indexed.end() ||
        !PrefixRange(t[literal].text, &low, &high)) {
      continue;
    }
    std::string ref;
    for (size_t k = begin; k <= column; ++k) ref += t[k].text;
    const std::string term = "(" + ref + " LIKE " + t[literal].text + " AND " + ref + " >= " +
                             Quote(low) + " AND " + ref + " < " + Quote(high) + ")";
    t.erase(t.begin() + begin, t.begin() + literal + 1);
    t.insert(t.begin() + begin, {Tok::kPunct, term});
    i = begin;
  }
}

}  // namespace

std::string TranslateSql(std::string_view sql, const IndexedTextColumns& indexed) {
  Tokens tokens = Tokenize(sql);
  RewriteTop(tokens);
  AddInsertColumns(tokens);
  AddLikeRanges(tokens, indexed);
  std::string out;
  out.reserve(sql.size() + 32);
  for (const Token& token : tokens) out += token.text;
  return out;
}

}  // namespace zerbal::data
