#include "zerbal/recordset.h"

#include "base/text.h"
#include "base/raise.h"
#include "data/recordset_state.h"
#include "data/sqlite.h"

namespace zerbal {
namespace {

[[noreturn]] void Fail(int32_t number) { Raise(number, {}, data::kEngineSource); }

data::RecordsetState& Open(const std::shared_ptr<data::RecordsetState>& state) {
  if (!state) Fail(errc::kObjectNotSet);
  if (!state->open) Fail(errc::kObjectClosed);
  return *state;
}

}  // namespace

const std::string& Field::Name() const { return Open(state_).names[index_]; }

Variant Field::Value() const {
  const data::RecordsetState& s = Open(state_);
  if (s.position < 0 || s.position >= s.rows) Fail(errc::kNoCurrentRecord);
  return s.values[static_cast<size_t>(s.position) * s.names.size() + index_];
}

int32_t Recordset::RecordCount() const { return Open(state_).rows; }

void Recordset::MoveFirst() {
  data::RecordsetState& s = Open(state_);
  if (s.rows == 0) Fail(errc::kNoCurrentRecord);
  s.position = 0;
}

void Recordset::MoveLast() {
  data::RecordsetState& s = Open(state_);
  if (s.rows == 0) Fail(errc::kNoCurrentRecord);
  s.position = s.rows - 1;
}

void Recordset::MoveNext() {
  data::RecordsetState& s = Open(state_);
  if (s.position >= s.rows) Fail(errc::kNoCurrentRecord);
  ++s.position;
}

void Recordset::MovePrevious() {
  data::RecordsetState& s = Open(state_);
  if (s.position < 0 || s.rows == 0) Fail(errc::kNoCurrentRecord);
  --s.position;
}

bool Recordset::Eof() const {
  const data::RecordsetState& s = Open(state_);
  return s.rows == 0 || s.position >= s.rows;
}

bool Recordset::Bof() const {
  const data::RecordsetState& s = Open(state_);
  return s.rows == 0 || s.position < 0;
}

int32_t Recordset::FieldCount() const {
  return static_cast<int32_t>(Open(state_).names.size());
}

Field Recordset::Fields(int32_t index) const {
  if (index < 0 || index >= FieldCount()) Fail(errc::kItemNotFound);
  return Field(state_, index);
}

Field Recordset::Fields(std::string_view name) const {
  const std::vector<std::string>& names = Open(state_).names;
  for (size_t k = 0; k < names.size(); ++k) {
    if (SameText(names[k], name)) return Field(state_, static_cast<int32_t>(k));
  }
  Raise(errc::kItemNotFound, name, data::kEngineSource);
}

void Recordset::Close() {
  if (!state_) Fail(errc::kObjectNotSet);
  state_->Close();
}

bool Recordset::IsOpen() const { return state_ && state_->open; }

}  // namespace zerbal
