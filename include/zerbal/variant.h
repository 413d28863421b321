// Variant: the value type that crosses the library's boundary.
//
// A Variant is Empty, Null, a 16-bit Integer, a 32-bit Long, a Byte, a
// Boolean, a Double, a String (UTF-8) or an Array of Variants. Records travel
// as buffers: a one-dimensional Array for one record, a two-dimensional Array
// indexed (column, row) for a list.
//
// Variants and Arrays are values: copying one copies the whole array, as the
// host language does on assignment. Moving is cheap.

#ifndef ZERBAL_VARIANT_H_
#define ZERBAL_VARIANT_H_

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace zerbal {

class Array;

enum class VarKind : uint8_t {
  kEmpty,
  kNull,
  kInteger,  // int16_t
  kLong,     // int32_t
  kByte,     // uint8_t
  kBoolean,
  kDouble,
  kString,
  kArray,
};

class Variant {
 public:
  Variant() noexcept;  // Empty
  Variant(int16_t value) noexcept;
  Variant(int32_t value) noexcept;
  Variant(uint8_t value) noexcept;
  Variant(bool value) noexcept;
  Variant(double value) noexcept;
  Variant(std::string value) noexcept;
  Variant(std::string_view value);
  Variant(const char* value);
  Variant(Array value);

  static Variant Null() noexcept;

  Variant(const Variant& other);
  Variant& operator=(const Variant& other);
  Variant(Variant&& other) noexcept;
  Variant& operator=(Variant&& other) noexcept;
  ~Variant();

  VarKind Kind() const { return kind_; }
  bool IsEmpty() const { return kind_ == VarKind::kEmpty; }
  bool IsNull() const { return kind_ == VarKind::kNull; }
  bool IsArray() const { return kind_ == VarKind::kArray; }

  // The value as held. Each raises error 13 (type mismatch) when the kind is
  // another; use the conversions of the runtime to convert.
  int16_t AsInteger() const;
  int32_t AsLong() const;
  uint8_t AsByte() const;
  bool AsBoolean() const;
  double AsDouble() const;
  const std::string& AsString() const;
  const Array& AsArray() const;
  Array& AsArray();

  // Element access on an array variant: raises 13 when this is not an array
  // and 9 when the subscripts do not fit its dimensions and bounds.
  Variant& operator()(int32_t i);
  const Variant& operator()(int32_t i) const;
  Variant& operator()(int32_t i, int32_t j);
  const Variant& operator()(int32_t i, int32_t j) const;

  // Same kind and same value; arrays compare bounds and elements.
  friend bool operator==(const Variant& a, const Variant& b);

 private:
  union Scalar {
    int16_t integer;
    int32_t lng;
    uint8_t byte;
    bool boolean;
    double dbl;
  };

  VarKind kind_;
  Scalar scalar_{};
  std::string string_;
  std::unique_ptr<Array> array_;
};

// One- or two-dimensional array of Variants; each dimension has its own lower
// and upper bound (upper = lower - 1 is an empty dimension). Elements start
// Empty.
class Array {
 public:
  Array();  // one dimension, 0 to -1
  Array(int32_t lower, int32_t upper);
  Array(int32_t lower0, int32_t upper0, int32_t lower1, int32_t upper1);

  int Dimensions() const { return static_cast<int>(bounds_.size()); }
  // Bounds of `dimension`, counted from 1; raise 9 for a dimension that does
  // not exist.
  int32_t LBound(int dimension = 1) const;
  int32_t UBound(int dimension = 1) const;

  // Raise 9 when the subscripts do not fit.
  Variant& operator()(int32_t i);
  const Variant& operator()(int32_t i) const;
  Variant& operator()(int32_t i, int32_t j);
  const Variant& operator()(int32_t i, int32_t j) const;

  // Changes the upper bound of the last dimension and keeps every element
  // that is still inside the bounds.
  void ReDimPreserve(int32_t upper_last);

  // Every element, the first subscript varying fastest.
  const std::vector<Variant>& Elements() const { return elements_; }

  friend bool operator==(const Array& a, const Array& b);

 private:
  struct Bounds {
    int32_t lower;
    int32_t upper;
    bool operator==(const Bounds&) const = default;
  };
  size_t Offset(int32_t i) const;
  size_t Offset(int32_t i, int32_t j) const;

  std::vector<Bounds> bounds_;
  std::vector<Variant> elements_;
};

// The host language's type number: 0 Empty, 1 Null, 2 Integer, 3 Long,
// 5 Double, 8 String, 11 Boolean, 17 Byte, 8204 array of variants.
int32_t VarType(const Variant& value);

// A readable rendering for logs, tests and the command-line tool: strings
// quoted, arrays as nested lists.
std::string DebugString(const Variant& value);

}  // namespace zerbal

#endif  // ZERBAL_VARIANT_H_
