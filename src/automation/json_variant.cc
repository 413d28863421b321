#include "automation/json_variant.h"

#include <cmath>
#include <limits>
#include <string>

#include "base/raise.h"

namespace zerbal::automation {
namespace {

using nlohmann::json;

constexpr const char* kTypeNames[] = {"Empty", "Null",   "Integer", "Long", "Byte",
                                      "Boolean", "Double", "String", "Array"};

[[noreturn]] void Bad(const std::string& what) {
  Raise(errc::kInvalidProcedureCall, "not a variant: " + what);
}

template <typename T>
T Whole(const json& value) {
  if (!value.is_number_integer()) Bad("a whole number was expected, got " + value.dump());
  const int64_t n = value.get<int64_t>();
  if (n < std::numeric_limits<T>::min() || n > std::numeric_limits<T>::max()) {
    Raise(errc::kOverflow, value.dump());
  }
  return static_cast<T>(n);
}

int32_t Bound(const json& value) { return Whole<int32_t>(value); }

Variant ArrayFromJson(const json& j) {
  const json& bounds = j.at("bounds");
  const json& elements = j.at("elements");
  if (!bounds.is_array() || bounds.empty() || bounds.size() > 2 || !elements.is_array()) {
    Bad("an array needs one or two bounds and a list of elements");
  }
  for (const json& pair : bounds) {
    if (!pair.is_array() || pair.size() != 2) Bad("each bound is [lower, upper]");
  }
  Array array = bounds.size() == 1
                    ? Array(Bound(bounds[0][0]), Bound(bounds[0][1]))
                    : Array(Bound(bounds[0][0]), Bound(bounds[0][1]), Bound(bounds[1][0]),
                            Bound(bounds[1][1]));
  if (elements.size() != array.Elements().size()) {
    Bad("the array has " + std::to_string(array.Elements().size()) + " elements, the list " +
        std::to_string(elements.size()));
  }
  size_t k = 0;
  if (array.Dimensions() == 1) {
    for (int32_t i = array.LBound(1); i <= array.UBound(1); ++i) array(i) = FromJson(elements[k++]);
  } else {
    for (int32_t j2 = array.LBound(2); j2 <= array.UBound(2); ++j2) {
      for (int32_t i = array.LBound(1); i <= array.UBound(1); ++i) {
        array(i, j2) = FromJson(elements[k++]);
      }
    }
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
  Bad(j.dump());
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
          return Variant(static_cast<int32_t>(j.get<int64_t>()));
        }
        return Variant(n);
      }
      case json::value_t::number_float: return Variant(j.get<double>());
      case json::value_t::object: return TaggedFromJson(j);
      default: Bad(j.dump());
    }
  } catch (const json::exception& e) {
    Bad(e.what());
  }
}

}  // namespace zerbal::automation
