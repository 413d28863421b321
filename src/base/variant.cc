#include "zerbal/variant.h"

#include <utility>

#include "base/raise.h"

namespace zerbal {

Variant::Variant() noexcept : kind_(VarKind::kEmpty) {}
Variant::Variant(int16_t value) noexcept : kind_(VarKind::kInteger) { scalar_.integer = value; }
Variant::Variant(int32_t value) noexcept : kind_(VarKind::kLong) { scalar_.lng = value; }
Variant::Variant(uint8_t value) noexcept : kind_(VarKind::kByte) { scalar_.byte = value; }
Variant::Variant(bool value) noexcept : kind_(VarKind::kBoolean) { scalar_.boolean = value; }
Variant::Variant(double value) noexcept : kind_(VarKind::kDouble) { scalar_.dbl = value; }
Variant::Variant(std::string value) noexcept
    : kind_(VarKind::kString), string_(std::move(value)) {}
Variant::Variant(std::string_view value) : Variant(std::string(value)) {}
Variant::Variant(const char* value) : Variant(std::string(value)) {}
Variant::Variant(Array value)
    : kind_(VarKind::kArray), array_(std::make_unique<Array>(std::move(value))) {}

Variant Variant::Null() noexcept {
  Variant v;
  v.kind_ = VarKind::kNull;
  return v;
}

Variant::Variant(const Variant& other)
    : kind_(other.kind_), scalar_(other.scalar_), string_(other.string_) {
  if (other.array_) array_ = std::make_unique<Array>(*other.array_);
}

Variant& Variant::operator=(const Variant& other) {
  if (this != &other) *this = Variant(other);
  return *this;
}

Variant::Variant(Variant&& other) noexcept
    : kind_(other.kind_),
      scalar_(other.scalar_),
      string_(std::move(other.string_)),
      array_(std::move(other.array_)) {
  other.kind_ = VarKind::kEmpty;
}

Variant& Variant::operator=(Variant&& other) noexcept {
  if (this != &other) {
    kind_ = other.kind_;
    scalar_ = other.scalar_;
    string_ = std::move(other.string_);
    array_ = std::move(other.array_);
    other.kind_ = VarKind::kEmpty;
  }
  return *this;
}

Variant::~Variant() = default;

namespace {
void Expect(VarKind have, VarKind want) {
  if (have != want) Raise(errc::kTypeMismatch);
}
}  // namespace

int16_t Variant::AsInteger() const { Expect(kind_, VarKind::kInteger); return scalar_.integer; }
int32_t Variant::AsLong() const { Expect(kind_, VarKind::kLong); return scalar_.lng; }
uint8_t Variant::AsByte() const { Expect(kind_, VarKind::kByte); return scalar_.byte; }
bool Variant::AsBoolean() const { Expect(kind_, VarKind::kBoolean); return scalar_.boolean; }
double Variant::AsDouble() const { Expect(kind_, VarKind::kDouble); return scalar_.dbl; }
const std::string& Variant::AsString() const { Expect(kind_, VarKind::kString); return string_; }
const Array& Variant::AsArray() const { Expect(kind_, VarKind::kArray); return *array_; }
Array& Variant::AsArray() { Expect(kind_, VarKind::kArray); return *array_; }

Variant& Variant::operator()(int32_t i) { return AsArray()(i); }
const Variant& Variant::operator()(int32_t i) const { return AsArray()(i); }
Variant& Variant::operator()(int32_t i, int32_t j) { return AsArray()(i, j); }
const Variant& Variant::operator()(int32_t i, int32_t j) const { return AsArray()(i, j); }

bool operator==(const Variant& a, const Variant& b) {
  if (a.kind_ != b.kind_) return false;
  switch (a.kind_) {
    case VarKind::kEmpty:
    case VarKind::kNull: return true;
    case VarKind::kInteger: return a.scalar_.integer == b.scalar_.integer;
    case VarKind::kLong: return a.scalar_.lng == b.scalar_.lng;
    case VarKind::kByte: return a.scalar_.byte == b.scalar_.byte;
    case VarKind::kBoolean: return a.scalar_.boolean == b.scalar_.boolean;
    case VarKind::kDouble: return a.scalar_.dbl == b.scalar_.dbl;
    case VarKind::kString: return a.string_ == b.string_;
    case VarKind::kArray: return *a.array_ == *b.array_;
  }
  return false;
}

int32_t VarType(const Variant& value) {
  switch (value.Kind()) {
    case VarKind::kEmpty: return 0;
    case VarKind::kNull: return 1;
    case VarKind::kInteger: return 2;
    case VarKind::kLong: return 3;
    case VarKind::kDouble: return 5;
    case VarKind::kString: return 8;
    case VarKind::kBoolean: return 11;
    case VarKind::kByte: return 17;
    case VarKind::kArray: return 8192 + 12;
  }
  return 0;
}

}  // namespace zerbal
