#include <cstdint>

#include "base/raise.h"
#include "zerbal/variant.h"

namespace zerbal {
namespace {

// Far above any buffer the system builds (32,767 rows of 28 columns), low
// enough that a wild bound is refused instead of exhausting memory.
constexpr int64_t kMaxElements = int64_t{1} << 24;

int64_t Extent(int32_t lower, int32_t upper) {
  const int64_t n = int64_t{upper} - lower + 1;
  if (n < 0) Raise(errc::kSubscriptOutOfRange);
  return n;
}

// Extents reach 2^32, so their product is checked before it is formed.
size_t CheckedCount(int64_t rows, int64_t columns = 1) {
  if (columns != 0 && rows > kMaxElements / columns) Raise(errc::kOutOfMemory);
  return static_cast<size_t>(rows * columns);
}

}  // namespace

Array::Array() : bounds_{{0, -1}} {}

Array::Array(int32_t lower, int32_t upper) : bounds_{{lower, upper}} {
  elements_.resize(CheckedCount(Extent(lower, upper)));
}

Array::Array(int32_t lower0, int32_t upper0, int32_t lower1, int32_t upper1)
    : bounds_{{lower0, upper0}, {lower1, upper1}} {
  elements_.resize(CheckedCount(Extent(lower0, upper0), Extent(lower1, upper1)));
}

int32_t Array::LBound(int dimension) const {
  if (dimension < 1 || dimension > Dimensions()) Raise(errc::kSubscriptOutOfRange);
  return bounds_[dimension - 1].lower;
}

int32_t Array::UBound(int dimension) const {
  if (dimension < 1 || dimension > Dimensions()) Raise(errc::kSubscriptOutOfRange);
  return bounds_[dimension - 1].upper;
}

size_t Array::Offset(int32_t i) const {
  if (Dimensions() != 1 || i < bounds_[0].lower || i > bounds_[0].upper) {
    Raise(errc::kSubscriptOutOfRange);
  }
  return static_cast<size_t>(int64_t{i} - bounds_[0].lower);
}

size_t Array::Offset(int32_t i, int32_t j) const {
  if (Dimensions() != 2 || i < bounds_[0].lower || i > bounds_[0].upper ||
      j < bounds_[1].lower || j > bounds_[1].upper) {
    Raise(errc::kSubscriptOutOfRange);
  }
  const int64_t rows = Extent(bounds_[0].lower, bounds_[0].upper);
  return static_cast<size_t>((int64_t{i} - bounds_[0].lower) +
                             (int64_t{j} - bounds_[1].lower) * rows);
}

Variant& Array::operator()(int32_t i) { return elements_[Offset(i)]; }
const Variant& Array::operator()(int32_t i) const { return elements_[Offset(i)]; }
Variant& Array::operator()(int32_t i, int32_t j) { return elements_[Offset(i, j)]; }
const Variant& Array::operator()(int32_t i, int32_t j) const { return elements_[Offset(i, j)]; }

// The first subscript varies fastest, so the elements of the last dimension
// are contiguous blocks and a new upper bound only adds or drops blocks.
void Array::ReDimPreserve(int32_t upper_last) {
  Bounds& last = bounds_.back();
  int64_t block = 1;
  for (size_t d = 0; d + 1 < bounds_.size(); ++d) {
    block *= Extent(bounds_[d].lower, bounds_[d].upper);
  }
  const size_t count = CheckedCount(block, Extent(last.lower, upper_last));
  elements_.resize(count);
  last.upper = upper_last;
}

bool operator==(const Array& a, const Array& b) {
  return a.bounds_ == b.bounds_ && a.elements_ == b.elements_;
}

}  // namespace zerbal
