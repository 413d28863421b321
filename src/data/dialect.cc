#include "data/dialect.h"

#include <cctype>

#include "base/convert.h"
#include "base/raise.h"
#include "data/sqlite.h"

namespace zerbal::data {
namespace {

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

}  // namespace

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

namespace {

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

}  // namespace

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

namespace {

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

// A LIKE that a range can serve: "[t.]col LIKE ?" standing as a term of
// its own, on an indexed text column. Gives the index of the column's first
// token and of the parameter.
bool RangeableLike(const Tokens& t, size_t like, const IndexedTextColumns& indexed,
                   size_t* begin, size_t* param) {
  const size_t column = Prev(t, like);
  *param = Next(t, like + 1);
  if (column == std::string::npos || t[column].kind != Tok::kWord || Is(t, column, "NOT") ||
      *param >= t.size() || t[*param].kind != Tok::kParam) {
    return false;
  }
  *begin = column;
  const size_t dot = Prev(t, column);
  if (Is(t, dot, ".") && dot > 0 && t[dot - 1].kind == Tok::kWord) *begin = dot - 1;
  return StartsTerm(t, Prev(t, *begin)) && EndsTerm(t, Next(t, *param + 1)) &&
         indexed.find(LCase(t[column].text)) != indexed.end();
}

// The value index of each parameter token, in order.
std::vector<size_t> ParamValues(const Tokens& t) {
  std::vector<size_t> values(t.size(), 0);
  size_t n = 0;
  for (size_t i = 0; i < t.size(); ++i) {
    if (t[i].kind == Tok::kParam) values[i] = n++;
  }
  return values;
}

}  // namespace

bool PrefixRange(std::string_view pattern, std::string* low, std::string* high) {
  const size_t stop = pattern.find_first_of("*?#[");
  *low = std::string(pattern.substr(0, stop));
  if (low->empty()) return false;
  // Only a prefix of plain ASCII has a simple upper bound in the text order.
  for (char c : *low) {
    if (static_cast<unsigned char>(c) >= 0x7F || c < 0x20) return false;
  }
  *high = *low;
  high->back() = static_cast<char>(std::tolower(static_cast<unsigned char>(high->back())) + 1);
  return true;
}

std::vector<size_t> RangeCandidates(const Tokens& tokens, const std::vector<Literal>& literals,
                                    const IndexedTextColumns& indexed) {
  std::vector<size_t> candidates;
  const std::vector<size_t> values = ParamValues(tokens);
  for (size_t i = 0; i < tokens.size(); ++i) {
    size_t begin, param;
    if (Is(tokens, i, "LIKE") && RangeableLike(tokens, i, indexed, &begin, &param) &&
        literals[values[param]].kind == Literal::Kind::kText) {
      candidates.push_back(values[param]);
    }
  }
  return candidates;
}

Translation Translate(const Tokens& tokens, const std::vector<Literal>& literals,
                      const IndexedTextColumns& indexed, const std::vector<bool>& ranged) {
  Tokens t = tokens;
  Translation out;
  const std::vector<size_t> values = ParamValues(t);
  for (size_t i = 0; i < t.size(); ++i) {
    if (t[i].kind == Tok::kParam) {
      out.binds.push_back({values[i], Bind::Part::kValue});
      t[i].text = "?" + std::to_string(out.binds.size());
    } else if (t[i].kind == Tok::kPunct && t[i].text == "&") {
      t[i].text = "||";
    }
  }
  // Parameters are numbered now; the value of "?N" is binds[N - 1].
  auto value_of = [&](size_t param) { return out.binds[std::stoul(t[param].text.substr(1)) - 1].value; };
  size_t candidate = 0;
  for (size_t i = 0; i < t.size(); ++i) {
    size_t begin, param;
    if (!Is(t, i, "LIKE") || !RangeableLike(t, i, indexed, &begin, &param) ||
        literals[value_of(param)].kind != Literal::Kind::kText) {
      continue;
    }
    if (candidate >= ranged.size() || !ranged[candidate++]) continue;
    std::string ref;
    for (size_t k = begin; k < i; ++k) {
      if (t[k].kind != Tok::kSpace) ref += t[k].text;
    }
    const size_t value = value_of(param);
    out.binds.push_back({value, Bind::Part::kLow});
    const std::string low = "?" + std::to_string(out.binds.size());
    out.binds.push_back({value, Bind::Part::kHigh});
    const std::string high = "?" + std::to_string(out.binds.size());
    const std::string term = "(" + ref + " LIKE " + t[param].text + " AND " + ref + " >= " + low +
                             " AND " + ref + " < " + high + ")";
    t.erase(t.begin() + begin, t.begin() + param + 1);
    t.insert(t.begin() + begin, {Tok::kPunct, term});
    i = begin;
  }
  RewriteTop(t);
  AddInsertColumns(t);
  for (const Token& token : t) out.sql += token.text;
  return out;
}

}  // namespace zerbal::data
