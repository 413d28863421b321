#include "data/inserted_key.h"

#include "base/convert.h"
#include "base/text.h"

namespace zerbal::data {
namespace {

bool IsCounter(sqlite3* db, const std::string& table, const std::string& column) {
  const char* type = nullptr;
  int primary = 0;
  if (sqlite3_table_column_metadata(db, "main", table.c_str(), column.c_str(), &type, nullptr,
                                    nullptr, &primary, nullptr) != SQLITE_OK) {
    return false;
  }
  return primary != 0 && type != nullptr && SameText(type, "INTEGER");
}

}  // namespace

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

void InsertedKey::AfterStatement(sqlite3* db, const KeyUse& use) {
  if (!use.insert_table.empty() && sqlite3_changes(db) == 1) {
    table_ = use.insert_table;
    key_ = sqlite3_last_insert_rowid(db);
  } else {
    table_.clear();
  }
}

std::optional<int64_t> InsertedKey::ReadBack(sqlite3* db, KeyUse& use) {
  const bool match = !table_.empty() && use.max_table == table_;
  table_.clear();
  if (!match) return std::nullopt;
  if (use.counter < 0) use.counter = IsCounter(db, use.max_table, use.max_column) ? 1 : 0;
  if (use.counter == 0) return std::nullopt;
  return key_;
}

}  // namespace zerbal::data
