// ShapeOf: the checks of what the original engine's SQL may hold, and the
// lifting of values into parameters.

#include <cctype>
#include <cerrno>
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
    "TRIGGER", "VIRTUAL",  "GENERATED", "RAISE",   "ISNULL",
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


void Check(const Tokens& t, bool definition) {
  for (size_t i = 0; i < t.size(); ++i) {
    const Token& token = t[i];
    switch (token.kind) {
      case Tok::kComment: Refuse("comment: " + token.text.substr(0, 40));
      case Tok::kQuoted:
        if (token.text[0] == '`') Refuse(token.text);
        if (IsCatalogueName(token.text)) Refuse(token.text);
        break;
      case Tok::kPunct:
        if (IsOneOf(t, i, kForeignOperators)) Refuse(token.text);
        break;
      case Tok::kParam:
        // Elsewhere a "?" is a value lifted out; a definition lifts none.
        if (definition) Refuse(token.text);
        break;
      case Tok::kWord: {
        if (IsOneOf(t, i, kForeignWords) || IsCatalogueName(token.text)) Refuse(token.text);
        // A temporary table or view; temp alone is a name (the upgrade's
        // working column).
        if ((Is(t, i, "TEMP") || Is(t, i, "TEMPORARY")) && Is(t, Prev(t, i), "CREATE")) {
          Refuse(token.text);
        }
        const bool blob = (token.text == "x" || token.text == "X") && i + 1 < t.size() &&
                          (t[i + 1].kind == Tok::kString || t[i + 1].kind == Tok::kParam);
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

Literal TextValue(std::string value) {
  Literal v;
  v.text = std::move(value);
  return v;
}

Literal NumberValue(std::string_view text) {
  if (!IsPlainNumber(text)) Refuse(text);
  Literal v;
  v.text = std::string(text);
  if (v.text.find_first_of(".eE") == std::string::npos) {
    errno = 0;
    const long long n = std::strtoll(v.text.c_str(), nullptr, 10);
    if (errno == 0) {
      v.kind = Literal::Kind::kInteger;
      v.integer = n;
      return v;
    }
  }
  v.kind = Literal::Kind::kReal;
  v.real = std::strtod(v.text.c_str(), nullptr);
  return v;
}

// The original engine reads "text" as a text, like 'text'.
std::string DoubleQuotedValue(std::string_view token) {
  std::string inner;
  for (size_t k = 1; k + 1 < token.size(); ++k) {
    if (token[k] == '"' && token[k + 1] == '"') ++k;
    inner.push_back(token[k]);
  }
  return inner;
}

// Whether `word` is `upper` in any case (`upper` in capitals, ASCII).
bool SameWord(std::string_view word, std::string_view upper) {
  if (word.size() != upper.size()) return false;
  for (size_t k = 0; k < word.size(); ++k) {
    if ((word[k] & ~0x20) != upper[k]) return false;
  }
  return true;
}

// Walks the statement once, copying it into the shape's text with each
// value lifted out. Values stay in the text where they are not values to
// the engine: the count of TOP, the items of a select list (they name its
// columns) and the positions of ORDER BY and GROUP BY.
void Lift(std::string_view sql, Shape& shape) {
  std::vector<int> kept_depth;  // depths at which values stay
  int depth = 0;
  bool after_top = false;
  auto kept_here = [&] { return !kept_depth.empty() && kept_depth.back() == depth; };
  size_t copied = 0;  // the text is copied in runs, up to each lifted value
  auto lift = [&](size_t begin, Literal value) {
    shape.text.append(sql.substr(copied, begin - copied)).push_back('?');
    shape.values.push_back(std::move(value));
  };
  for (size_t pos = 0; pos < sql.size();) {
    Tok kind;
    const size_t begin = pos;
    const size_t len = ScanToken(sql, pos, &kind);
    const std::string_view token = sql.substr(pos, len);
    pos += len;
    const bool keep = kept_here() || after_top;
    if (kind != Tok::kSpace && kind != Tok::kComment) after_top = false;
    switch (kind) {
      case Tok::kString:
      case Tok::kNumber:
        if (keep) break;
        lift(begin, kind == Tok::kString ? TextValue(StringValue(token)) : NumberValue(token));
        copied = pos;
        break;
      case Tok::kQuoted:
        if (token[0] != '"' || keep) break;
        lift(begin, TextValue(DoubleQuotedValue(token)));
        copied = pos;
        break;
      case Tok::kParam: Refuse(token);
      case Tok::kPunct:
        if (token == "(") ++depth;
        if (token == ")") {
          if (kept_here()) kept_depth.pop_back();
          --depth;
        }
        if (token == ";") {
          // Text after the end is a second statement, whatever it holds: the
          // whole text is refused and nothing of it runs.
          const size_t rest = sql.find_first_not_of(" \t\r\n;", pos);
          if (rest != std::string_view::npos) {
            Raise(errc::kTextAfterStatement, sql.substr(rest, 60), kEngineSource);
          }
        }
        break;
      case Tok::kWord:
        if (token.size() > 6) break;
        if (SameWord(token, "SELECT") || SameWord(token, "BY")) {
          if (!kept_here()) kept_depth.push_back(depth);
        } else if (SameWord(token, "FROM") || SameWord(token, "WHERE") ||
                   SameWord(token, "HAVING") || SameWord(token, "UNION") ||
                   SameWord(token, "ORDER") || SameWord(token, "GROUP")) {
          if (kept_here()) kept_depth.pop_back();
        } else if (SameWord(token, "TOP")) {
          after_top = true;
        }
        break;
      default: break;
    }
  }
  shape.text.append(sql.substr(copied));
}

}  // namespace

Shape ShapeOf(std::string_view sql) {
  Shape shape;
  const size_t begin = sql.find_first_not_of(" \t\r\n(");
  const std::string_view first =
      begin == std::string_view::npos ? "" : sql.substr(begin, sql.find_first_of(" \t\r\n(", begin) - begin);
  // Statements of the original engine's language only: no engine-specific
  // commands (ATTACH, PRAGMA, VACUUM, ...), which could reach other files.
  const bool query = SameWord(first, "SELECT") || SameWord(first, "INSERT") ||
                     SameWord(first, "UPDATE") || SameWord(first, "DELETE");
  shape.definition = SameWord(first, "CREATE") || SameWord(first, "ALTER") || SameWord(first, "DROP");
  if (!query && !shape.definition) Raise(errc::kNotAStatement, sql.substr(0, 40), kEngineSource);
  shape.text.reserve(sql.size());
  if (shape.definition) {
    shape.text = sql;
  } else {
    Lift(sql, shape);
  }
  shape.key.reserve(shape.text.size() + shape.values.size() + 1);
  shape.key.append(shape.text).push_back('\0');
  for (const Literal& v : shape.values) shape.key.push_back(v.kind == Literal::Kind::kText ? 't' : 'n');
  return shape;
}

void CheckShape(const Tokens& tokens, bool definition) { Check(tokens, definition); }

}  // namespace zerbal::data
