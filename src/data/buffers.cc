#include "data/buffers.h"

#include "base/convert.h"
#include "base/raise.h"
#include "data/recordset_state.h"

namespace zerbal::General {
namespace {

constexpr std::string_view kApostrophe = "'";
constexpr std::string_view kAcute = "\xC2\xB4";  // "´"

std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to) {
  std::string out;
  out.reserve(text.size());
  size_t pos = 0;
  for (size_t found; (found = text.find(from, pos)) != std::string_view::npos;) {
    out.append(text, pos, found - pos);
    out += to;
    pos = found + from.size();
  }
  out.append(text, pos);
  return out;
}

// The next 16-bit position: the counters of the copy are 16-bit integers.
int16_t Step(int16_t k) {
  if (k == INT16_MAX) Raise(errc::kOverflow);
  return static_cast<int16_t>(k + 1);
}

}  // namespace

Variant CargarArray(Recordset& recordset, int16_t& mode) {
  if (recordset.RecordCount() < 1) return Variant::Null();
  recordset.MoveLast();
  recordset.MoveFirst();
  const int32_t rows = recordset.RecordCount();
  const int32_t n = recordset.FieldCount();
  if (mode == 1) {
    Variant buffer(Array(0, rows - 1));
    for (int16_t k = 0; !recordset.Eof(); recordset.MoveNext()) {
      buffer(k) = RestaurarComilla(data::CurrentValue(recordset, 0));
      k = Step(k);
    }
    return buffer;
  }
  if (mode == 0) {
    Variant buffer(Array(0, n));
    for (int16_t k = 0; !recordset.Eof(); recordset.MoveNext()) {
      for (int32_t c = 0; c < n; ++c) {
        buffer(k) = RestaurarComilla(data::CurrentValue(recordset, c));
        k = Step(k);
      }
    }
    return buffer;
  }
  Variant buffer(Array(0, n, 0, rows));
  for (int16_t k = 0; !recordset.Eof(); recordset.MoveNext()) {
    k = Step(k);
    for (int32_t c = 0; c < n; ++c) {
      buffer(c, k) = RestaurarComilla(data::CurrentValue(recordset, c));
    }
  }
  return buffer;
}

std::string SustituirComilla(std::string_view text) {
  return ReplaceAll(text, kApostrophe, kAcute);
}

std::string RestaurarComilla(const Variant& value) {
  if (value.IsNull()) return "";
  if (value.Kind() != VarKind::kString) return CStr(value);  // numbers hold no accent
  const std::string& text = value.AsString();
  return text.find(kAcute) == std::string::npos ? text : ReplaceAll(text, kAcute, kApostrophe);
}

}  // namespace zerbal::General
