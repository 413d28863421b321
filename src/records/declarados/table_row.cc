#include "records/declarados/table_row.h"

#include "base/convert.h"
#include "base/raise.h"
#include "data/buffers.h"

namespace zerbal::records {
namespace {

Variant Converted(Kind kind, const Variant& value) {
  switch (kind) {
    case Kind::kLong:
      return CLng(value);
    case Kind::kDouble:
      return CDbl(value);
    case Kind::kText:
      break;
  }
  return CStr(value);
}

}  // namespace

TableRow::TableRow(std::span<const Column> columns) : columns_(columns) {
  values_.reserve(columns_.size());
  for (const Column& column : columns_) {
    values_.push_back(column.kind == Kind::kText ? Variant("") : Converted(column.kind, 0));
  }
}

void TableRow::Let(int slot, const Variant& value) {
  const Column& column = columns_[slot];
  if (column.kind != Kind::kText || column.rule == Rule::kAsGiven) {
    values_[slot] = Converted(column.kind, value);
    return;
  }
  const std::string text = CStr(value);
  if (text.empty()) {
    values_[slot] = " ";
  } else {
    values_[slot] = column.rule == Rule::kBlankProtected ? General::SustituirComilla(text) : text;
  }
}

void TableRow::Store(int slot, const Variant& value) {
  const Kind kind = columns_[slot].kind;
  values_[slot] = kind == Kind::kText && value.IsNull() ? Variant("") : Converted(kind, value);
}

void TableRow::FromBuffer(const Variant& buffer, std::span<const int> order) {
  for (size_t i = 0; i < order.size(); ++i) Let(order[i], buffer(static_cast<int32_t>(i)));
}

void TableRow::FromRecord(const Recordset& record, std::span<const int> order) {
  for (size_t i = 0; i < order.size(); ++i) {
    Store(order[i], record.Fields(static_cast<int32_t>(i)).Value());
  }
}

int TableRow::SlotOf(std::string_view property) const {
  for (size_t slot = 0; slot < columns_.size(); ++slot) {
    if (columns_[slot].property == property) return static_cast<int>(slot);
  }
  Raise(errc::kInternalError, "no column " + std::string(property));
}

std::string TableRow::Text(int slot) const {
  std::string text = CStr(values_[slot]);
  if (text.find('\'') != std::string::npos) {
    Raise(errc::kSyntaxError, "apostrophe in " + std::string(columns_[slot].property));
  }
  return text;
}

std::string TableRow::Sql(std::string_view statement) const {
  std::string sql;
  sql.reserve(statement.size() + 128);
  size_t pos = 0;
  for (size_t open; (open = statement.find('{', pos)) != std::string_view::npos;) {
    const size_t close = statement.find('}', open);
    if (close == std::string_view::npos) Raise(errc::kInternalError, "unclosed place in statement");
    sql.append(statement, pos, open - pos);
    sql += Text(SlotOf(statement.substr(open + 1, close - open - 1)));
    pos = close + 1;
  }
  sql.append(statement, pos);
  return sql;
}

}  // namespace zerbal::records
