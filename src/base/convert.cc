// Conversions between variant kinds, and the runtime's text functions.

#include <cmath>
#include <string>

#include "base/convert.h"
#include "base/raise.h"
#include "base/text.h"

namespace zerbal {
namespace {

double ToDouble(const Variant& value) {
  switch (value.Kind()) {
    case VarKind::kEmpty: return 0;
    case VarKind::kNull: Raise(errc::kInvalidUseOfNull);
    case VarKind::kInteger: return value.AsInteger();
    case VarKind::kLong: return value.AsLong();
    case VarKind::kByte: return value.AsByte();
    case VarKind::kBoolean: return value.AsBoolean() ? -1 : 0;
    case VarKind::kDouble: return value.AsDouble();
    case VarKind::kString: {
      double number = 0;
      if (!ParseNumber(value.AsString(), &number)) Raise(errc::kTypeMismatch);
      return number;
    }
    case VarKind::kArray: Raise(errc::kTypeMismatch);
  }
  Raise(errc::kTypeMismatch);
}

// Rounds half to even (the default floating-point rounding) and checks the range.
int64_t ToWhole(const Variant& value, int64_t low, int64_t high) {
  const double rounded = std::nearbyint(ToDouble(value));
  if (!(rounded >= static_cast<double>(low) && rounded <= static_cast<double>(high))) {
    Raise(errc::kOverflow);
  }
  return static_cast<int64_t>(rounded);
}

bool SameLetters(std::string_view text, std::string_view word) {
  return UCase(text) == word;
}

}  // namespace

std::string CStr(const Variant& value) {
  switch (value.Kind()) {
    case VarKind::kEmpty: return "";
    case VarKind::kNull: Raise(errc::kInvalidUseOfNull);
    case VarKind::kInteger: return std::to_string(value.AsInteger());
    case VarKind::kLong: return std::to_string(value.AsLong());
    case VarKind::kByte: return std::to_string(value.AsByte());
    case VarKind::kBoolean: return value.AsBoolean() ? "True" : "False";
    case VarKind::kDouble: return NumberText(value.AsDouble());
    case VarKind::kString: return value.AsString();
    case VarKind::kArray: Raise(errc::kTypeMismatch);
  }
  Raise(errc::kTypeMismatch);
}

int16_t CInt(const Variant& value) {
  return static_cast<int16_t>(ToWhole(value, INT16_MIN, INT16_MAX));
}

int32_t CLng(const Variant& value) {
  return static_cast<int32_t>(ToWhole(value, INT32_MIN, INT32_MAX));
}

uint8_t CByte(const Variant& value) {
  return static_cast<uint8_t>(ToWhole(value, 0, UINT8_MAX));
}

double CDbl(const Variant& value) { return ToDouble(value); }

bool CBool(const Variant& value) {
  if (value.Kind() == VarKind::kString) {
    const std::string text = Trim(value.AsString());
    if (SameLetters(text, "TRUE")) return true;
    if (SameLetters(text, "FALSE")) return false;
  }
  return ToDouble(value) != 0;
}

bool IsNumeric(const Variant& value) {
  switch (value.Kind()) {
    case VarKind::kNull:
    case VarKind::kArray: return false;
    case VarKind::kString: {
      double ignored = 0;
      try {
        return ParseNumber(value.AsString(), &ignored);
      } catch (const Error&) {
        return true;  // a number, if one too large for a double
      }
    }
    default: return true;
  }
}

std::string LTrim(std::string_view text) {
  const size_t begin = text.find_first_not_of(' ');
  return begin == std::string_view::npos ? std::string() : std::string(text.substr(begin));
}

std::string RTrim(std::string_view text) {
  const size_t end = text.find_last_not_of(' ');
  return end == std::string_view::npos ? std::string() : std::string(text.substr(0, end + 1));
}

std::string Trim(std::string_view text) { return LTrim(RTrim(text)); }

namespace {
template <typename Map>
std::string MapChars(std::string_view text, Map map) {
  std::string out;
  out.reserve(text.size());
  for (size_t pos = 0; pos < text.size();) {
    size_t size = 1;
    const char32_t c = DecodeAt(text, pos, &size);
    if (c == 0xFFFD && size == 1) {
      out.push_back(text[pos]);  // keep a stray byte as it was
    } else {
      AppendUtf8(&out, map(c));
    }
    pos += size;
  }
  return out;
}
}  // namespace

std::string UCase(std::string_view text) { return MapChars(text, ToUpper); }
std::string LCase(std::string_view text) { return MapChars(text, ToLower); }

std::string DebugString(const Variant& value) {
  switch (value.Kind()) {
    case VarKind::kEmpty: return "Empty";
    case VarKind::kNull: return "Null";
    case VarKind::kString: return "\"" + value.AsString() + "\"";
    case VarKind::kArray: break;
    default: return CStr(value);
  }
  const Array& a = value.AsArray();
  auto bounds = [&](int dimension) {
    return std::to_string(a.LBound(dimension)).append(" to ").append(
        std::to_string(a.UBound(dimension)));
  };
  std::string out = "(";
  out.append(bounds(1));
  if (a.Dimensions() == 2) out.append(", ").append(bounds(2));
  out.append(") {");
  if (a.Dimensions() == 2) {
    for (int32_t j = a.LBound(2); j <= a.UBound(2); ++j) {
      out.append(j == a.LBound(2) ? "[" : "; [");
      for (int32_t i = a.LBound(1); i <= a.UBound(1); ++i) {
        if (i != a.LBound(1)) out.append(", ");
        out.append(DebugString(a(i, j)));
      }
      out.append("]");
    }
  } else {
    for (int32_t i = a.LBound(1); i <= a.UBound(1); ++i) {
      if (i != a.LBound(1)) out.append(", ");
      out.append(DebugString(a(i)));
    }
  }
  return out.append("}");
}

}  // namespace zerbal
