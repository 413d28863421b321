#include "data/table_defs.h"

#include <algorithm>

#include "base/convert.h"
#include "base/raise.h"
#include "data/connection.h"

namespace zerbal::data {
namespace {

bool SameName(std::string_view a, std::string_view b) { return UCase(a) == UCase(b); }

std::vector<FieldDef>::const_iterator Find(const std::vector<FieldDef>& fields,
                                           std::string_view name) {
  return std::find_if(fields.begin(), fields.end(),
                      [&](const FieldDef& f) { return SameName(f.name, name); });
}

}  // namespace

const FieldDef& TableDef::Field(std::string_view name) const {
  const auto it = Find(fields_, name);
  if (it == fields_.end()) Raise(errc::kItemNotFound, name, kEngineSource);
  return *it;
}

void TableDef::Refresh() {
  const TableSchema schema = db_->Engine()->ReadTable(name_);
  std::vector<FieldDef> fields;
  bool ordered = true;
  for (const Column& c : schema.columns) {
    FieldDef f = c.field;
    const auto known = Find(fields_, f.name);
    // A column this definition has not seen comes right after the one
    // before it (on a first reading, its place in the table).
    f.ordinal_position = known != fields_.end() ? known->ordinal_position
                         : fields.empty()       ? 0
                                                : fields.back().ordinal_position + 1;
    ordered = ordered && (fields.empty() || f.ordinal_position >= fields.back().ordinal_position);
    fields.push_back(std::move(f));
  }
  if (!ordered) {
    for (size_t i = 0; i < fields.size(); ++i) fields[i].ordinal_position = static_cast<int>(i);
  }
  name_ = schema.name;
  fields_ = std::move(fields);
}

void TableDef::Append(FieldDef field) {
  CheckField(field);
  if (field.counter) Raise(errc::kInvalidOperation, field.name + ": a new key", kEngineSource);
  if (Find(fields_, field.name) != fields_.end()) {
    Raise(errc::kFieldDefinedTwice, field.name, kEngineSource);
  }
  if (field.ordinal_position < 0) {
    field.ordinal_position = fields_.empty() ? 0 : fields_.back().ordinal_position + 1;
  }
  std::vector<FieldDef> fields = fields_;
  const auto at = std::upper_bound(
      fields.begin(), fields.end(), field.ordinal_position,
      [](int position, const FieldDef& f) { return position < f.ordinal_position; });
  // The engine adds a last column without copying the rows, unless it is
  // required without a default.
  const bool last = at == fields.end() && !(field.required && field.default_value.empty());
  fields.insert(at, field);
  db_->Engine()->ChangeTable({TableChange::Kind::kAppend, name_, fields, field.name, {}, last});
  fields_ = std::move(fields);
}

void TableDef::Delete(std::string_view name) {
  const auto conn = db_->Engine();
  std::vector<FieldDef> fields = fields_;
  fields.erase(fields.begin() + (&Field(name) - fields_.data()));
  conn->ChangeTable({TableChange::Kind::kDelete, name_, fields, std::string(name), {}, false});
  fields_ = std::move(fields);
}

void TableDef::Rename(std::string_view name, const std::string& new_name) {
  const auto conn = db_->Engine();
  const FieldDef& current = Field(name);
  if (!IsPlainName(new_name)) Raise(errc::kInvalidName, new_name, kEngineSource);
  const auto clash = Find(fields_, new_name);
  if (clash != fields_.end() && &*clash != &current) {
    Raise(errc::kFieldDefinedTwice, new_name, kEngineSource);
  }
  std::vector<FieldDef> fields = fields_;
  fields[&current - fields_.data()].name = new_name;
  conn->ChangeTable({TableChange::Kind::kRename, name_, fields, std::string(name), new_name, false});
  fields_ = std::move(fields);
}

TableDef TableDefs::Item(std::string_view name) const {
  TableDef def(db_, std::string(name));
  def.Refresh();
  return def;
}

std::vector<std::string> TableDefs::Names() const { return db_.Engine()->TableNames(); }

}  // namespace zerbal::data
