#include "data/inserted_key.h"

#include "base/convert.h"
#include "base/text.h"

namespace zerbal::data {

KeyUse KeyUseOf(const Tokens& tokens) {
  std::vector<const Token*> w;  // the tokens but blanks
  for (const Token& token : tokens) {
    if (token.kind != Tok::kSpace) w.push_back(&token);
  }
  auto same = [&](size_t i, std::string_view upper) {
    return i < w.size() && SameText(w[i]->text, upper);
  };
  KeyUse use;
  if (same(0, "INSERT") && same(1, "INTO") && w.size() > 2 && w[2]->kind == Tok::kWord) {
    use.insert_table = LCase(w[2]->text);
  }
  // SELECT MAX ( column ) FROM table
  if (w.size() == 7 && same(0, "SELECT") && same(1, "MAX") && w[2]->text == "(" &&
      w[3]->kind == Tok::kWord && w[4]->text == ")" && same(5, "FROM") &&
      w[6]->kind == Tok::kWord) {
    use.max_table = LCase(w[6]->text);
    use.max_column = w[3]->text;
  }
  return use;
}

}  // namespace zerbal::data
