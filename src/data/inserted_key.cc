#include "data/inserted_key.h"

#include "base/convert.h"
#include "base/text.h"

namespace zerbal::data {
namespace {

// The non-blank tokens of a shape.
std::vector<const Token*> Words(const Shape& shape) {
  std::vector<const Token*> words;
  for (const Token& token : shape.tokens) {
    if (token.kind != Tok::kSpace) words.push_back(&token);
  }
  return words;
}

bool Same(const Token* token, std::string_view upper) {
  return SameText(token->text, upper);
}

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

void InsertedKey::AfterStatement(sqlite3* db, const Shape& shape) {
  const std::vector<const Token*> w = Words(shape);
  const bool insert = w.size() > 2 && Same(w[0], "INSERT") && Same(w[1], "INTO") &&
                      w[2]->kind == Tok::kWord;
  if (insert && sqlite3_changes(db) == 1) {
    table_ = LCase(w[2]->text);
    key_ = sqlite3_last_insert_rowid(db);
  } else {
    table_.clear();
  }
}

std::optional<int64_t> InsertedKey::ReadBack(sqlite3* db, const Shape& shape) {
  const std::string table = std::move(table_);
  table_.clear();
  if (table.empty()) return std::nullopt;
  // SELECT MAX ( column ) FROM table
  const std::vector<const Token*> w = Words(shape);
  if (w.size() != 7 || !Same(w[0], "SELECT") || !Same(w[1], "MAX") || w[2]->text != "(" ||
      w[3]->kind != Tok::kWord || w[4]->text != ")" || !Same(w[5], "FROM") ||
      w[6]->kind != Tok::kWord || LCase(w[6]->text) != table ||
      !IsCounter(db, w[6]->text, w[3]->text)) {
    return std::nullopt;
  }
  return key_;
}

}  // namespace zerbal::data
