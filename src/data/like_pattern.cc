#include "data/like_pattern.h"

#include <vector>

#include "base/text.h"

namespace zerbal::data {
namespace {

std::u32string Folded(std::string_view text) {
  std::u32string out;
  out.reserve(text.size());
  for (size_t pos = 0; pos < text.size();) {
    size_t size = 1;
    out.push_back(ToUpper(DecodeAt(text, pos, &size)));
    pos += size;
  }
  return out;
}

// Whether `c` is in the set that starts after "[" at `p`; moves `p` past "]".
// A set without its "]" is taken as a literal "[".
bool InSet(const std::u32string& pat, size_t* p, char32_t c, bool* ok) {
  size_t k = *p;
  bool negate = false;
  if (k < pat.size() && pat[k] == U'!') {
    negate = true;
    ++k;
  }
  bool found = false;
  bool first = true;
  for (; k < pat.size() && (pat[k] != U']' || first); ++k, first = false) {
    if (k + 2 < pat.size() && pat[k + 1] == U'-' && pat[k + 2] != U']') {
      found |= (c >= pat[k] && c <= pat[k + 2]);
      k += 2;
    } else {
      found |= (c == pat[k]);
    }
  }
  *ok = k < pat.size();
  if (*ok) *p = k + 1;
  return found != negate;
}

// Matches one pattern element at `*p` against `c`; advances `*p`.
bool MatchOne(const std::u32string& pat, size_t* p, char32_t c) {
  const char32_t e = pat[*p];
  if (e == U'?') {
    ++*p;
    return true;
  }
  if (e == U'#') {
    ++*p;
    return c >= U'0' && c <= U'9';
  }
  if (e == U'[') {
    size_t q = *p + 1;
    bool ok = false;
    const bool in = InSet(pat, &q, c, &ok);
    if (ok) {
      *p = q;
      return in;
    }
  }
  ++*p;
  return e == c;
}

}  // namespace

// Greedy matching with one back-tracking point at the last "*", the usual
// linear-space method: "*" never needs more than one resume position.
bool LikePattern(std::string_view text, std::string_view pattern) {
  const std::u32string s = Folded(text);
  const std::u32string pat = Folded(pattern);
  size_t i = 0;
  size_t p = 0;
  size_t star_p = std::u32string::npos;
  size_t star_i = 0;
  while (i < s.size()) {
    if (p < pat.size() && pat[p] == U'*') {
      star_p = ++p;
      star_i = i;
      continue;
    }
    size_t next = p;
    if (p < pat.size() && MatchOne(pat, &next, s[i])) {
      p = next;
      ++i;
      continue;
    }
    if (star_p == std::u32string::npos) return false;
    p = star_p;
    i = ++star_i;
  }
  while (p < pat.size() && pat[p] == U'*') ++p;
  return p == pat.size();
}

}  // namespace zerbal::data
