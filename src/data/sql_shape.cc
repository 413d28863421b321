// ShapeOf: the checks of what the original engine's SQL may hold, and the
// lifting of values into parameters.

#include <cctype>
#include <cstdlib>
#include <string>

#include "base/convert.h"
#include "base/raise.h"
#include "data/dialect.h"
#include "data/sqlite.h"

namespace zerbal::data {
namespace {

[[noreturn]] void Refuse(std::string_view what) {
  Raise(errc::kSyntaxError, what, kEngineSource);
}

// Words of the engine's own SQL that the original engine's does not have.
constexpr std::string_view kForeignWords[] = {
    "WITH",   "RECURSIVE", "PRAGMA",    "ATTACH",  "DETACH",    "VACUUM",  "REINDEX",
    "ANALYZE", "EXPLAIN",  "GLOB",      "REGEXP",  "MATCH",     "COLLATE", "ESCAPE",
    "INDEXED", "RETURNING", "CONFLICT", "REPLACE", "LIMIT",     "OFFSET",  "OVER",
    "WINDOW",  "FILTER",   "CAST",      "CASE",    "ROWID",     "_ROWID_", "OID",
    "TEMP",    "TEMPORARY", "TRIGGER",  "VIRTUAL", "GENERATED", "RAISE",   "ISNULL",
    "NOTNULL", "SAVEPOINT", "RELEASE",  "BEGIN",   "COMMIT",    "ROLLBACK", "TRANSACTION"};

// Operators of the engine's own SQL; "&" is the original engine's join of texts.
constexpr std::string_view kForeignOperators[] = {"||", "|", "<<", ">>", "~", "==", "!=", "%",
                                                  "->", "?", ":", "@", "$", "#"};

// The functions the original engine's SQL shares with this one.
constexpr std::string_view kFunctions[] = {"COUNT", "SUM",  "MAX",  "MIN", "AVG",
                                           "TRIM",  "LTRIM", "RTRIM", "ABS"};

// Words that may stand before a parenthesis without calling a function.
constexpr std::string_view kBeforeParenthesis[] = {
    "IN",  "EXISTS", "VALUES", "AND",  "OR",    "NOT",  "ON",       "WHERE", "FROM",
    "SELECT", "JOIN", "AS",    "HAVING", "BETWEEN", "LIKE", "SET",  "UNION", "ALL",
    "DISTINCT", "BY", "WHEN",  "THEN", "ELSE",  "IS",   "INTO"};

bool IsOneOf(const Tokens& t, size_t i, const std::string_view* begin, const std::string_view* end) {
  for (const std::string_view* w = begin; w != end; ++w) {
    if (Is(t, i, *w)) return true;
  }
  return false;
}

template <size_t N>
bool IsOneOf(const Tokens& t, size_t i, const std::string_view (&words)[N]) {
  return IsOneOf(t, i, words, words + N);
}

bool IsCatalogueName(std::string_view name) {
  const std::string lower = LCase(name);
  return lower.find("sqlite_") != std::string::npos || lower.starts_with("pragma_");
}

// Digits with an optional point and exponent, as the original engine reads them.
bool IsPlainNumber(std::string_view text) {
  size_t k = 0;
  auto digits = [&] {
    const size_t from = k;
    while (k < text.size() && std::isdigit(static_cast<unsigned char>(text[k]))) ++k;
    return k > from;
  };
  bool any = digits();
  if (k < text.size() && text[k] == '.') {
    ++k;
    any = digits() || any;
  }
  if (!any) return false;
  if (k < text.size() && (text[k] == 'e' || text[k] == 'E')) {
    ++k;
    if (k < text.size() && (text[k] == '+' || text[k] == '-')) ++k;
    if (!digits()) return false;
  }
  return k == text.size();
}

// The original engine reads "text" as a text, like 'text'.
void DoubleQuotedToString(Token& token) {
  std::string inner;
  for (size_t k = 1; k + 1 < token.text.size(); ++k) {
    if (token.text[k] == '"' && token.text[k + 1] == '"') ++k;
    inner.push_back(token.text[k]);
  }
  std::string quoted = "'";
  for (char c : inner) quoted += c == '\'' ? std::string("''") : std::string(1, c);
  token = {Tok::kString, quoted + "'"};
}

void Check(Tokens& t, bool definition) {
  for (size_t i = 0; i < t.size(); ++i) {
    Token& token = t[i];
    switch (token.kind) {
      case Tok::kComment: Refuse("comment: " + token.text.substr(0, 40));
      case Tok::kQuoted:
        if (token.text[0] == '`') Refuse(token.text);
        if (IsCatalogueName(token.text)) Refuse(token.text);
        if (token.text[0] == '"') DoubleQuotedToString(token);
        break;
      case Tok::kNumber:
        if (!IsPlainNumber(token.text)) Refuse(token.text);
        break;
      case Tok::kPunct:
        if (IsOneOf(t, i, kForeignOperators)) Refuse(token.text);
        break;
      case Tok::kWord: {
        if (IsOneOf(t, i, kForeignWords) || IsCatalogueName(token.text)) Refuse(token.text);
        const bool blob = (token.text == "x" || token.text == "X") && i + 1 < t.size() &&
                          t[i + 1].kind == Tok::kString;
        if (blob) Refuse(token.text + t[i + 1].text);
        if (definition) break;
        const size_t next = Next(t, i + 1);
        const bool call = next < t.size() && t[next].text == "(";
        const bool into = Is(t, Prev(t, i), "INTO");
        if (call && !into && !IsOneOf(t, i, kFunctions) && !IsOneOf(t, i, kBeforeParenthesis)) {
          Refuse(token.text + "(");
        }
        break;
      }
      default: break;
    }
  }
}

// Text after a ";" that ends the statement is a second statement, whatever
// it holds: the whole text is refused and nothing of it runs.
void RefuseSecondStatement(const Tokens& t) {
  for (size_t i = 0; i < t.size(); ++i) {
    if (t[i].kind != Tok::kPunct || t[i].text != ";") continue;
    for (size_t k = i + 1; k < t.size(); ++k) {
      if (t[k].kind == Tok::kSpace || t[k].text == ";") continue;
      std::string rest;
      for (size_t j = k; j < t.size() && rest.size() < 60; ++j) rest += t[j].text;
      Raise(errc::kTextAfterStatement, rest, kEngineSource);
    }
    return;
  }
}

Literal ValueOf(const Token& token) {
  Literal v;
  v.text = token.text;
  if (token.kind == Tok::kString) {
    v.text = StringValue(token.text);
    return v;
  }
  const bool whole = token.text.find_first_of(".eE") == std::string::npos;
  errno = 0;
  if (whole) {
    const long long n = std::strtoll(token.text.c_str(), nullptr, 10);
    if (errno == 0) {
      v.kind = Literal::Kind::kInteger;
      v.integer = n;
      return v;
    }
  }
  v.kind = Literal::Kind::kReal;
  v.real = std::strtod(token.text.c_str(), nullptr);
  return v;
}

// Values that stay in the text: the count of TOP, the values of a select
// list (they name its columns) and the positions of ORDER BY and GROUP BY.
void Lift(Shape& shape) {
  Tokens& t = shape.tokens;
  std::vector<int> kept_depth;  // depths at which values are kept
  int depth = 0;
  auto kept_here = [&] { return !kept_depth.empty() && kept_depth.back() == depth; };
  for (size_t i = 0; i < t.size(); ++i) {
    Token& token = t[i];
    if (token.text == "(") ++depth;
    if (token.text == ")") {
      if (kept_here()) kept_depth.pop_back();
      --depth;
    }
    if (Is(t, i, "SELECT") || Is(t, i, "BY")) {
      if (!kept_here()) kept_depth.push_back(depth);
    } else if (Is(t, i, "FROM") || Is(t, i, "WHERE") || Is(t, i, "HAVING") || Is(t, i, "UNION") ||
               Is(t, i, "ORDER") || Is(t, i, "GROUP") || token.text == ";") {
      if (kept_here()) kept_depth.pop_back();
    }
    if (token.kind != Tok::kString && token.kind != Tok::kNumber) continue;
    if (kept_here() || Is(t, Prev(t, i), "TOP")) continue;
    shape.values.push_back(ValueOf(token));
    token = {Tok::kParam, "?"};
  }
}

}  // namespace

Shape ShapeOf(std::string_view sql) {
  Shape shape;
  shape.tokens = Tokenize(sql);
  const size_t first = Next(shape.tokens, 0);
  auto starts = [&](std::string_view word) { return Is(shape.tokens, first, word); };
  // Statements of the original engine's language only: no engine-specific
  // commands (ATTACH, PRAGMA, VACUUM, ...), which could reach other files.
  const bool query = starts("SELECT") || starts("INSERT") || starts("UPDATE") || starts("DELETE") ||
                     (first < shape.tokens.size() && shape.tokens[first].text == "(");
  shape.definition = starts("CREATE") || starts("ALTER") || starts("DROP");
  if (!query && !shape.definition) Raise(errc::kNotAStatement, sql.substr(0, 40), kEngineSource);
  RefuseSecondStatement(shape.tokens);
  Check(shape.tokens, shape.definition);
  if (!shape.definition) Lift(shape);
  shape.key.reserve(sql.size());
  for (const Token& token : shape.tokens) shape.key += token.text;
  return shape;
}

}  // namespace zerbal::data
