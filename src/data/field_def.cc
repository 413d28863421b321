#include "data/field_def.h"

#include <cctype>

#include "base/raise.h"
#include "data/sqlite.h"

namespace zerbal::data {
namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// A number ("0", "-12.5") or a text between apostrophes, an apostrophe
// inside written twice ("'O''Neill'"): nothing else may follow DEFAULT.
bool IsLiteral(std::string_view text) {
  if (text.size() >= 2 && text.front() == '\'' && text.back() == '\'') {
    const std::string_view inner = text.substr(1, text.size() - 2);
    for (size_t i = 0; i < inner.size(); ++i) {
      if (inner[i] != '\'') continue;
      if (i + 1 >= inner.size() || inner[i + 1] != '\'') return false;
      ++i;
    }
    return true;
  }
  size_t i = (!text.empty() && text[0] == '-') ? 1 : 0;
  const size_t digits_from = i;
  while (i < text.size() && IsDigit(text[i])) ++i;
  if (i == digits_from) return false;
  if (i < text.size() && text[i] == '.') {
    const size_t decimals_from = ++i;
    while (i < text.size() && IsDigit(text[i])) ++i;
    if (i == decimals_from) return false;
  }
  return i == text.size();
}

void Unsupported(const FieldDef& field, std::string_view what) {
  Raise(errc::kInvalidOperation, field.name + ": " + std::string(what), kEngineSource);
}

}  // namespace

bool IsPlainName(std::string_view name) {
  if (name.empty() || name.size() > 64 || IsDigit(name[0])) return false;
  for (char c : name) {
    if (!IsDigit(c) && c != '_' && !((c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'))) {
      return false;
    }
  }
  return true;
}

bool IntegerRange(int type, long long* low, long long* high) {
  switch (type) {
    case kFieldByte: *low = 0; *high = 255; return true;
    case kFieldInteger: *low = -32768; *high = 32767; return true;
    case kFieldLong: *low = -2147483648LL; *high = 2147483647LL; return true;
    default: return false;
  }
}

void CheckField(const FieldDef& field) {
  if (!IsPlainName(field.name)) Raise(errc::kInvalidName, field.name, kEngineSource);
  long long low, high;
  const bool whole = IntegerRange(field.type, &low, &high);
  if (!whole && field.type != kFieldDouble && field.type != kFieldText) {
    Unsupported(field, "no column of type " + std::to_string(field.type));
  }
  if (field.type == kFieldText ? (field.size < 0 || field.size > kMaxTextSize) : field.size != 0) {
    Unsupported(field, "no column of size " + std::to_string(field.size));
  }
  if (field.counter && field.type != kFieldLong) Unsupported(field, "a counter is a Long");
  if (!field.default_value.empty() && !IsLiteral(field.default_value)) {
    Unsupported(field, "the default " + field.default_value + " is not a literal");
  }
}

FieldDef CreateField(std::string name, int type, int size) {
  FieldDef field;
  field.name = std::move(name);
  field.type = type;
  field.size = size;
  CheckField(field);
  return field;
}

std::string ColumnSql(const FieldDef& field) {
  CheckField(field);
  const std::string& n = field.name;
  if (field.counter) return n + " INTEGER PRIMARY KEY AUTOINCREMENT";
  long long low = 0, high = 0;
  const bool whole = IntegerRange(field.type, &low, &high);
  std::string sql = n + (whole ? " INTEGER" : field.type == kFieldDouble ? " REAL" : " TEXT");
  if (field.required) sql += " NOT NULL";
  if (!field.default_value.empty()) sql += " DEFAULT " + field.default_value;
  if (whole) {
    sql += " CONSTRAINT range_" + n + " CHECK (" + n + " BETWEEN " + std::to_string(low) +
           " AND " + std::to_string(high) + ")";
  } else if (field.type == kFieldText) {
    sql += " COLLATE NOCASE";
    if (field.size > 0) {
      sql += " CONSTRAINT size_" + n + " CHECK (length(" + n + ") <= " +
             std::to_string(field.size) + ")";
    }
    if (!field.allow_zero_length) sql += " CONSTRAINT zero_" + n + " CHECK (" + n + " <> '')";
  }
  return sql;
}

std::string Squeezed(std::string_view definition) {
  std::string out;
  for (char c : definition) {
    if (!std::isspace(static_cast<unsigned char>(c))) {
      out += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    }
  }
  return out;
}

bool SameDefinition(std::string_view a, std::string_view b) { return Squeezed(a) == Squeezed(b); }

}  // namespace zerbal::data
