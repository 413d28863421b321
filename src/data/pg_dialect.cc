// The system's SQL for a PostgreSQL server.

#include <string>

#include "base/text.h"
#include "data/dialect.h"

namespace zerbal::data {
namespace {

// A deterministic collation that folds every letter the way LIKE must:
// the server's regular expressions take case from it.
constexpr std::string_view kFoldingCollation = " COLLATE \"und-x-icu\" ";

void AppendEscaped(std::string& out, char32_t c) {
  static constexpr std::string_view kSpecial = "\\^$.|?*+()[]{}";
  if (c < 0x80 && kSpecial.find(static_cast<char>(c)) != std::string_view::npos) out += '\\';
  AppendUtf8(&out, c);
}

// Whether the "-" at `i` is a sign rather than a subtraction: nothing that
// ends a value stands before it.
bool UnarySign(const Tokens& t, size_t i) {
  const size_t before = Prev(t, i);
  if (before == std::string::npos) return true;
  const Token& b = t[before];
  if (b.kind == Tok::kPunct) return b.text != ")";
  if (b.kind != Tok::kWord) return false;
  static constexpr std::string_view kKeywords[] = {"SELECT", "WHERE", "AND", "OR", "NOT", "WHEN",
                                                   "THEN", "ELSE", "BETWEEN", "IN", "ON", "HAVING",
                                                   "SET", "BY", "IS", "VALUES", "LIKE"};
  for (std::string_view k : kKeywords) {
    if (Is(t, before, k)) return true;
  }
  return false;
}

// "FROM (SELECT ...)" without a name for the subquery: the server wants one.
void NameSubqueries(Tokens& t) {
  static constexpr std::string_view kAfterTable[] = {"WHERE", "GROUP", "ORDER", "UNION", "INNER",
                                                     "LEFT", "RIGHT", "JOIN", "ON", "HAVING",
                                                     "LIMIT"};
  int named = 0;
  for (size_t i = 0; i < t.size(); ++i) {
    const size_t before = Prev(t, i);
    if (t[i].text != "(" || !(Is(t, before, "FROM") || Is(t, before, "JOIN") || Is(t, before, ",")) ||
        !Is(t, Next(t, i + 1), "SELECT")) {
      continue;
    }
    int depth = 0;
    size_t close = i;
    for (; close < t.size(); ++close) {
      if (t[close].text == "(") ++depth;
      if (t[close].text == ")" && --depth == 0) break;
    }
    if (close >= t.size()) return;
    const size_t after = Next(t, close + 1);
    bool unnamed = after >= t.size() || t[after].kind == Tok::kPunct;
    for (std::string_view word : kAfterTable) unnamed = unnamed || Is(t, after, word);
    if (unnamed) t.insert(t.begin() + close + 1, {Tok::kWord, " AS zerbal_subquery_" + std::to_string(++named)});
  }
}

}  // namespace

std::string PatternRegex(std::string_view pattern) {
  std::u32string p;
  for (size_t pos = 0; pos < pattern.size();) {
    size_t size = 1;
    p.push_back(DecodeAt(pattern, pos, &size));
    pos += size;
  }
  std::string out = "^";
  for (size_t i = 0; i < p.size(); ++i) {
    const char32_t c = p[i];
    if (c == U'*') {
      out += ".*";
    } else if (c == U'?') {
      out += '.';
    } else if (c == U'#') {
      out += "[0-9]";
    } else if (c == U'[') {
      // The set ends at the first "]" after its first member; without one
      // the "[" stands for itself.
      size_t k = i + 1;
      const bool negate = k < p.size() && p[k] == U'!';
      if (negate) ++k;
      size_t end = k;
      for (bool first = true; end < p.size() && (p[end] != U']' || first); ++end) first = false;
      if (end >= p.size()) {
        AppendEscaped(out, c);
        continue;
      }
      out += negate ? "[^" : "[";
      for (size_t m = k; m < end; ++m) {
        if (p[m] == U'-' && m != k && m + 1 != end) {
          out += '-';
        } else {
          // Inside a set only these are not themselves; a backslash before
          // a letter would be an escape of the server's own.
          if (p[m] < 0x80 && std::string_view("\\[]^-").find(static_cast<char>(p[m])) != std::string_view::npos) {
            out += '\\';
          }
          AppendUtf8(&out, p[m]);
        }
      }
      out += ']';
      i = end;
    } else {
      AppendEscaped(out, c);
    }
  }
  return out + "$";
}

std::vector<std::string> SelectedNames(const Tokens& t) {
  std::vector<std::string> names;
  size_t i = Next(t, 0);
  if (!Is(t, i, "SELECT")) return names;
  i = Next(t, i + 1);
  if (Is(t, i, "DISTINCT") || Is(t, i, "ALL")) i = Next(t, i + 1);
  if (Is(t, i, "TOP")) i = Next(t, Next(t, i + 1) + 1);
  int depth = 0;
  size_t last = std::string::npos;  // the item's last token
  for (; i < t.size(); ++i) {
    if (t[i].kind == Tok::kSpace) continue;
    const bool end = depth == 0 && (t[i].text == "," || Is(t, i, "FROM"));
    if (end) {
      names.push_back(last != std::string::npos && t[last].kind == Tok::kWord ? t[last].text : "");
      if (Is(t, i, "FROM")) return names;
      last = std::string::npos;
      continue;
    }
    if (t[i].text == "(") ++depth;
    if (t[i].text == ")") --depth;
    last = i;
  }
  names.push_back(last != std::string::npos && t[last].kind == Tok::kWord ? t[last].text : "");
  return names;
}

Translation TranslateForServer(const Tokens& tokens, const std::string& counter) {
  Tokens t = tokens;
  Translation out;
  size_t value = 0;
  for (size_t i = 0; i < t.size(); ++i) {
    if (t[i].kind == Tok::kParam) {
      const size_t before = Prev(t, i);
      const bool pattern = Is(tokens, before, "LIKE");
      Bind::Part part = pattern ? Bind::Part::kPattern : Bind::Part::kValue;
      // A sign before a value goes into the value: the server cannot tell
      // which minus is meant for a value of no type yet.
      if (!pattern && Is(t, before, "-") && UnarySign(t, before)) {
        t[before].text.clear();
        part = Bind::Part::kNegated;
      }
      out.binds.push_back({value++, part});
      t[i].text = "$" + std::to_string(out.binds.size());
    } else if (t[i].kind == Tok::kPunct && t[i].text == "&") {
      t[i].text = "||";
    } else if (Is(t, i, "LIKE")) {
      const size_t before = Prev(t, i);
      const bool negated = Is(t, before, "NOT");
      if (negated) t[before].text.clear();
      t[i] = {Tok::kPunct, std::string(kFoldingCollation) + (negated ? "!~*" : "~*")};
    }
  }
  RewriteTop(t);
  AddInsertColumns(t);
  NameSubqueries(t);
  for (const Token& token : t) out.sql += token.text;
  const size_t first = Next(tokens, 0);
  if (!counter.empty() && Is(tokens, first, "INSERT")) out.sql += " RETURNING " + counter;
  return out;
}

}  // namespace zerbal::data
