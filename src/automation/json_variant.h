// Variants as JSON, without loss: every variant is an object with its
// "type" (Empty, Null, Integer, Long, Byte, Boolean, Double, String, Array)
// and, but for Empty and Null, its "value". An array has "bounds", one
// [lower, upper] pair per dimension, and "elements", every element in order
// with the first subscript varying fastest ((0,0), (1,0), (2,0), (0,1), ...).
//
// A request may also give a plain JSON value where a variant goes: a string
// is a String, a whole number a Long (a Double beyond 32 bits), any other
// number a Double, true/false a Boolean, null Null.

#ifndef ZERBAL_AUTOMATION_JSON_VARIANT_H_
#define ZERBAL_AUTOMATION_JSON_VARIANT_H_

#include <nlohmann/json.hpp>

#include "zerbal/variant.h"

namespace zerbal::automation {

nlohmann::json ToJson(const Variant& value);

// Raises 5 with a description of what is wrong when `json` is not a variant
// (an array whose bounds do not give exactly the elements it lists
// included, checked before the array is made), 6 for a whole number past
// the range of its type. It recurses as deep as arrays nest in `json`: the
// session refuses a request nested past kMaxDepth before it gets here.
Variant FromJson(const nlohmann::json& json);

}  // namespace zerbal::automation

#endif  // ZERBAL_AUTOMATION_JSON_VARIANT_H_
