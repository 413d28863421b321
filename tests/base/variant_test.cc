#include "zerbal/variant.h"

#include "testutil.h"

namespace zerbal {
namespace {

TEST(VariantTest, KindsAnswerTheHostTypeNumbers) {
  const struct {
    Variant value;
    VarKind kind;
    int32_t var_type;
  } rows[] = {
      {Variant(), VarKind::kEmpty, 0},
      {Variant::Null(), VarKind::kNull, 1},
      {Variant(int16_t{5}), VarKind::kInteger, 2},
      {Variant(5), VarKind::kLong, 3},
      {Variant(5.5), VarKind::kDouble, 5},
      {Variant("x"), VarKind::kString, 8},
      {Variant(true), VarKind::kBoolean, 11},
      {Variant(uint8_t{7}), VarKind::kByte, 17},
      {Variant(Array(0, 1)), VarKind::kArray, 8204},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(row.value.Kind(), row.kind) << DebugString(row.value);
    EXPECT_EQ(VarType(row.value), row.var_type) << DebugString(row.value);
  }
  EXPECT_NE(Variant(int16_t{5}), Variant(5)) << "same number, different kinds";
  EXPECT_RAISES(Variant(5).AsString(), 13);
  EXPECT_RAISES(Variant("x")(0), 13);
}

TEST(VariantTest, ArraySubscriptsOutsideTheBoundsRaise9) {
  Array one(1, 3);
  EXPECT_EQ(one.LBound(), 1);
  EXPECT_EQ(one.UBound(), 3);
  EXPECT_TRUE(one(1).IsEmpty());
  EXPECT_RAISES(one(0), 9);
  EXPECT_RAISES(one(4), 9);
  EXPECT_RAISES(one(1, 1), 9);
  EXPECT_RAISES(one.UBound(2), 9);

  Array two(0, 2, 1, 3);
  two(2, 3) = "corner";
  EXPECT_EQ(two(2, 3), Variant("corner"));
  EXPECT_EQ(two.UBound(1), 2);
  EXPECT_EQ(two.LBound(2), 1);
  EXPECT_RAISES(two(3, 1), 9);
  EXPECT_RAISES(two(0, 0), 9);
  EXPECT_RAISES(two(0), 9);

  EXPECT_EQ(Array().UBound(), -1) << "an empty array runs from 0 to -1";
  EXPECT_RAISES(Array(0, 1 << 30), 7);
  EXPECT_RAISES(Array(INT32_MIN, INT32_MAX, INT32_MIN, INT32_MAX), 7) << "2^64 elements";
  EXPECT_RAISES(Array(5, 3), 9);
}

TEST(VariantTest, ReDimPreserveKeepsEveryElementStillInside) {
  Array table(0, 2, 0, 1);
  for (int32_t i = 0; i <= 2; ++i) {
    for (int32_t j = 0; j <= 1; ++j) table(i, j) = i * 10 + j;
  }
  table.ReDimPreserve(3);
  EXPECT_EQ(table.UBound(2), 3);
  for (int32_t i = 0; i <= 2; ++i) {
    EXPECT_EQ(table(i, 1), Variant(i * 10 + 1)) << "row 1, column " << i;
    EXPECT_TRUE(table(i, 3).IsEmpty());
  }
  table.ReDimPreserve(0);
  EXPECT_EQ(table(2, 0), Variant(20));
  EXPECT_RAISES(table(2, 1), 9);

  Array list(1, 2);
  list(2) = "b";
  list.ReDimPreserve(5);
  EXPECT_EQ(list(2), Variant("b"));
  EXPECT_EQ(list.LBound(), 1);
}

TEST(VariantTest, CopiesAreIndependentValues) {
  Variant original(Array(0, 1));
  original(0) = "first";
  Variant copy = original;
  copy(0) = "changed";
  EXPECT_EQ(original(0), Variant("first"));
  EXPECT_EQ(copy(0), Variant("changed"));

  Variant moved = std::move(copy);
  EXPECT_EQ(moved(0), Variant("changed"));
  EXPECT_TRUE(copy.IsEmpty());  // NOLINT(bugprone-use-after-move): moved-from is Empty
}

TEST(VariantTest, DebugStringShowsKindsAndNesting) {
  Variant list(Array(0, 2));
  list(0) = "a";
  list(1) = 5;
  EXPECT_EQ(DebugString(list), "(0 to 2) {\"a\", 5, Empty}");
  Variant table(Array(0, 1, 1, 2));
  table(1, 2) = Variant::Null();
  EXPECT_EQ(DebugString(table), "(0 to 1, 1 to 2) {[Empty, Empty]; [Empty, Null]}");
}

}  // namespace
}  // namespace zerbal
