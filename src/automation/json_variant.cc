#include "automation/json_variant.h"

#include <cmath>
#include <limits>
#include <string>

#include "base/raise.h"
#include "base/text.h"

namespace zerbal::automation {
namespace {

using nlohmann::json;

constexpr const char* kTypeNames[] = {"Empty", "Null",   "Integer", "Long", "Byte",
                                      "Boolean", "Double", "String", "Array"};

[[noreturn]] void Bad(const std::string& what) {
  Raise(errc::kInvalidProcedureCall, "not a variant: " + what);
}

// A value as the description of an error shows it: its first characters.
std::string Shown(const json& value) {
  return Abridged(value.dump(-1, ' ', false, json::error_handler_t::replace), 60);
}

// Every number is read as a double: each whole value of T is exact there,
// and anything past T's range, 64-bit or wider, stays past it.
template <typename T>
T Whole(const json& value) {
  if (!value.is_number()) Bad("a whole number was expected, got " + Shown(value));
  const double n = value.get<double>();
  if (n != std::trunc(n)) Bad("a whole number was expected, got " + Shown(value));
  if (n < std::numeric_limits<T>::min() || n > std::numeric_limits<T>::max()) {
    Raise(errc::kOverflow, Shown(value));
  }
  return static_cast<T>(n);
}

int32_t Bound(const json& value) { return Whole<int32_t>(value); }

// Elements from `lower` to `upper` of a pair: up to 2^32.
int64_t Extent(const json& pair) {
  if (!pair.is_array() || pair.size() != 2) Bad("each bound is [lower, upper]");
  const int64_t n = int64_t{Bound(pair[1])} - Bound(pair[0]) + 1;
  if (n < 0) Bad("an upper bound below its lower bound less one: " + Shown(pair));
  return n;
}

// The array is made only once its bounds are known to give exactly the
// elements listed, so the line's own length bounds what it costs; the
// elements are then placed by their position in the list, never by looping
// over subscripts that may stand at the ends of the 32-bit range.
Variant ArrayFromJson(const json& j) {
  const json& bounds = j.at("bounds");
  const json& elements = j.at("elements");
  if (!bounds.is_array() || bounds.empty() || bounds.size() > 2 || !elements.is_array()) {
    Bad("an array needs one or two bounds and a list of elements");
  }
  const int64_t rows = Extent(bounds[0]);
  const int64_t columns = bounds.size() == 2 ? Extent(bounds[1]) : 1;
  const uint64_t given = elements.size();
  // rows * columns would overflow for two full 32-bit ranges; the division cannot.
  const bool matches = columns == 0 ? given == 0
                                    : given % columns == 0 && given / columns == uint64_t(rows);
  if (!matches) {
    Bad("the bounds give " + std::to_string(rows) +
        (bounds.size() == 2 ? " by " + std::to_string(columns) : std::string()) +
        " elements, the list has " + std::to_string(given));
  }
  const int32_t lower = Bound(bounds[0][0]);
  if (bounds.size() == 1) {
    Array array(lower, Bound(bounds[0][1]));
    for (uint64_t k = 0; k < given; ++k) {
      array(static_cast<int32_t>(lower + int64_t(k))) = FromJson(elements[k]);
    }
    return Variant(std::move(array));
  }
  const int32_t lower2 = Bound(bounds[1][0]);
  Array array(lower, Bound(bounds[0][1]), lower2, Bound(bounds[1][1]));
  for (uint64_t k = 0; k < given; ++k) {
    array(static_cast<int32_t>(lower + int64_t(k % rows)),
          static_cast<int32_t>(lower2 + int64_t(k / rows))) = FromJson(elements[k]);
  }
  return Variant(std::move(array));
}

Variant TaggedFromJson(const json& j) {
  const std::string type = j.at("type").get<std::string>();
  if (type == "Empty") return Variant();
  if (type == "Null") return Variant::Null();
  if (type == "Array") return ArrayFromJson(j);
  const json& value = j.at("value");
  if (type == "Integer") return Variant(Whole<int16_t>(value));
  if (type == "Long") return Variant(Whole<int32_t>(value));
  if (type == "Byte") return Variant(Whole<uint8_t>(value));
  if (type == "Boolean" && value.is_boolean()) return Variant(value.get<bool>());
  if (type == "Double" && value.is_number()) return Variant(value.get<double>());
  if (type == "String" && value.is_string()) return Variant(value.get<std::string>());
  Bad(Shown(j));
}

}  // namespace

json ToJson(const Variant& value) {
  json j = {{"type", kTypeNames[static_cast<int>(value.Kind())]}};
  switch (value.Kind()) {
    case VarKind::kEmpty:
    case VarKind::kNull: break;
    case VarKind::kInteger: j["value"] = value.AsInteger(); break;
    case VarKind::kLong: j["value"] = value.AsLong(); break;
    case VarKind::kByte: j["value"] = value.AsByte(); break;
    case VarKind::kBoolean: j["value"] = value.AsBoolean(); break;
    case VarKind::kDouble: j["value"] = value.AsDouble(); break;
    case VarKind::kString: j["value"] = value.AsString(); break;
    case VarKind::kArray: {
      const Array& a = value.AsArray();
      json bounds = json::array();
      for (int d = 1; d <= a.Dimensions(); ++d) bounds.push_back({a.LBound(d), a.UBound(d)});
      json elements = json::array();
      for (const Variant& e : a.Elements()) elements.push_back(ToJson(e));
      j["bounds"] = std::move(bounds);
      j["elements"] = std::move(elements);
      break;
    }
  }
  return j;
}

Variant FromJson(const json& j) {
  try {
    switch (j.type()) {
      case json::value_t::null: return Variant::Null();
      case json::value_t::boolean: return Variant(j.get<bool>());
      case json::value_t::string: return Variant(j.get<std::string>());
      case json::value_t::number_integer:
      case json::value_t::number_unsigned: {
        const double n = j.get<double>();
        if (n >= std::numeric_limits<int32_t>::min() && n <= std::numeric_limits<int32_t>::max()) {
          return Variant(static_cast<int32_t>(n));
        }
        return Variant(n);
      }
      case json::value_t::number_float: return Variant(j.get<double>());
      case json::value_t::object: return TaggedFromJson(j);
      default: Bad(Shown(j));
    }
  } catch (const json::exception& e) {
    Bad(e.what());
  }
}

}  // namespace zerbal::automation
