#include "base/convert.h"

#include <cmath>

#include "testutil.h"

namespace zerbal {
namespace {

// The number a conversion gives, or the error it raises (0 for none).
struct Outcome {
  double value = 0;
  int32_t error = 0;
};

template <typename F>
Outcome Convert(F convert) {
  Outcome outcome;
  const auto error = test::ErrorOf([&] { outcome.value = static_cast<double>(convert()); });
  if (error) outcome.error = error->Number();
  return outcome;
}

struct WholeRow {
  Variant input;
  double cint;   // expected CInt, when cint_error is 0
  int32_t cint_error;
};

TEST(ConvertTest, CIntRoundsHalvesToEvenAndChecksItsRange) {
  const WholeRow rows[] = {
      // Text is read as CDbl reads it.
      {"2.5", 2, 0},        {"3.5", 4, 0},       {-2.5, -2, 0},      {" 7 ", 7, 0},
      {Variant(), 0, 0},    {true, -1, 0},       {32767.4, 32767, 0}, {32767.5, 0, 6},
      {-32768.5, -32768, 0}, {-32769, 0, 6},     {"", 0, 13},        {Variant::Null(), 0, 94},
      {Variant(Array(0, 0)), 0, 13},
  };
  for (const WholeRow& row : rows) {
    const Outcome got = Convert([&] { return CInt(row.input); });
    EXPECT_EQ(got.error, row.cint_error) << DebugString(row.input);
    if (row.cint_error == 0) {
      EXPECT_EQ(got.value, row.cint) << DebugString(row.input);
    }
  }
}

TEST(ConvertTest, CLngAndCByteHaveTheirOwnRanges) {
  EXPECT_EQ(CLng(2147483647.0), 2147483647);
  EXPECT_EQ(CLng("-2147483648"), INT32_MIN);
  EXPECT_RAISES(CLng(2147483648.0), 6);
  EXPECT_EQ(CByte(255), 255);
  EXPECT_EQ(CByte(-0.5), 0) << "rounds to zero before the range check";
  EXPECT_RAISES(CByte(256), 6);
  EXPECT_RAISES(CByte(-1), 6);
}

TEST(ConvertTest, CDblReadsOnlyTheInvariantForm) {
  const struct {
    const char* text;
    double value;
    int32_t error;
  } rows[] = {
      {"12.5", 12.5, 0}, {"  -0.5 ", -0.5, 0}, {".5", 0.5, 0},  {"5.", 5, 0},
      {"+4", 4, 0},      {"1e400", 0, 6},      {"inf", 0, 13},  {"nan", 0, 13},
      {"0x10", 0, 13},   {"12,5", 0, 13},      {"1.000,5", 0, 13}, {"- 5", 0, 13},
      {"1e-400", 0, 0},
  };
  for (const auto& row : rows) {
    const Outcome got = Convert([&] { return CDbl(row.text); });
    EXPECT_EQ(got.error, row.error) << row.text;
    if (row.error == 0) {
      EXPECT_EQ(got.value, row.value) << row.text;
    }
  }
}

TEST(ConvertTest, CBoolTakesWordsAndNumbers) {
  EXPECT_TRUE(CBool("True"));
  EXPECT_FALSE(CBool(" false "));
  EXPECT_FALSE(CBool("0"));
  EXPECT_TRUE(CBool("-1"));
  EXPECT_FALSE(CBool(Variant()));
  EXPECT_RAISES(CBool("yes"), 13);
}

TEST(ConvertTest, CStrWritesNumbersInTheInvariantForm) {
  const struct {
    Variant value;
    const char* text;
  } rows[] = {
      {Variant(), ""},
      {true, "True"},
      {false, "False"},
      {1234.0, "1234"},
      {12.5, "12.5"},
      {-0.5, "-0.5"},
      {0.1, "0.1"},
      {-0.0, "0"},
      {1.0 / 3, "0.333333333333333"},
      {99999999999.0, "99999999999"},
      {123456789012345.0, "123456789012345"},
      {1e15, "1E+15"},
      {1.5e20, "1.5E+20"},
      {int16_t{-7}, "-7"},
      {uint8_t{255}, "255"},
      {"as is", "as is"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(CStr(row.value), row.text) << DebugString(row.value);
    if (row.value.Kind() == VarKind::kDouble) {
      EXPECT_NEAR(CDbl(row.text), row.value.AsDouble(), 1e-15) << "reads back: " << row.text;
    }
  }
  EXPECT_RAISES(CStr(Variant::Null()), 94);
  EXPECT_RAISES(CStr(Variant(Array(0, 0))), 13);
  EXPECT_RAISES(NumberText(INFINITY), 6);
}

TEST(ConvertTest, ValReadsTheLeadingNumberAndIgnoresBlanks) {
  const struct {
    const char* text;
    double value;
  } rows[] = {
      {"12abc", 12}, {"1 000", 1000}, {"&H1F", 31}, {"&O17", 15}, {"  -3.5e2x", -350},
      {"abc", 0},    {"", 0},         {".5", 0.5},  {"1e", 1},    {"--5", 0},
      {"1d2", 100},  {"004", 4},      {"4.5.6", 4.5},
  };
  for (const auto& row : rows) EXPECT_EQ(Val(row.text), row.value) << row.text;
}

TEST(ConvertTest, IsNumericAgreesWithCDbl) {
  const struct {
    Variant value;
    bool numeric;
  } rows[] = {
      {Variant(), true}, {Variant::Null(), false}, {"12.5", true},   {" 7 ", true},
      {"12,5", false},   {"", false},              {"1e400", true},  {true, true},
      {Variant(Array(0, 0)), false},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(IsNumeric(row.value), row.numeric) << DebugString(row.value);
  }
}

TEST(ConvertTest, FormatFillsDigitMasks) {
  const struct {
    Variant value;
    const char* mask;
    const char* text;
  } rows[] = {
      {7, "0000", "0007"},        {12345, "0000", "12345"},   {-7, "0000", "-0007"},
      {5, "0#", "05"},            {0, "00", "00"},            {2.5, "0", "3"},
      {3.5, "0", "4"},            {-0.4, "0", "0"},           {"", "00", ""},
      {"abc", "00", "abc"},       {"7", "000", "007"},        {1234.567, "0.00", "1234.57"},
      {Variant(), "00", ""},      {20.0, "00", "20"},         {123, "#", "123"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(Format(row.value, row.mask), row.text)
        << DebugString(row.value) << " with " << row.mask;
  }
  EXPECT_RAISES(Format(Variant::Null(), "00"), 94);
}

TEST(ConvertTest, TrimRemovesBlanksOnlyAndCaseCoversAccents) {
  EXPECT_EQ(Trim("  a b  "), "a b");
  EXPECT_EQ(Trim("\ta\t"), "\ta\t");
  EXPECT_EQ(Trim("   "), "");
  EXPECT_EQ(LTrim("  x "), "x ");
  EXPECT_EQ(RTrim("  x "), "  x");
  EXPECT_EQ(UCase("ñandú çà ÿ i"), "ÑANDÚ ÇÀ Ÿ I");
  EXPECT_EQ(LCase("ÑANDÚ ÇÀ ×"), "ñandú çà ×");
  EXPECT_EQ(UCase("a\xFFz"), "A\xFFZ") << "a stray byte is kept as it is";
}

}  // namespace
}  // namespace zerbal
