#include "fileformat/layout.h"

#include <array>

#include "fixtures.h"
#include "testutil.h"

namespace zerbal::fileformat {
namespace {

// One field read from element 0 of the record buffer.
std::string Written(const Field& field, const Variant& value, std::string_view moneda = "E") {
  const Variant record = test::Buffer({value});
  RecordInput input;
  input.record = &record;
  input.moneda = moneda;
  return WriteField(field, input);
}

// A row per kind, to show which conversion it takes; the conversions' own
// rules are the tests of base/convert.h and reference/general.h.
TEST(LayoutTest, EachKindFormatsAsItsTableSays) {
  const struct {
    const char* rule;
    Field field;
    Variant value;
    const char* moneda;
    std::string written;
  } rows[] = {
      {"text padded", T("t", 1, 5, Declarado(0)), "abc", "E", "abc  "},
      {"zero fill, trimmed", T0("t", 1, 2, Declarado(0)), " F ", "E", "F0"},
      {"number from text", N("n", 1, 2, Declarado(0)), "7", "E", "07"},
      {"BC number, blanks inside", NBC("n", 1, 7, Declarado(0)), "943 12 34", "E", "0000000"},
      {"mask of a number", Mask("m", 1, 2, Declarado(0)), "5", "E", "05"},
      {"amount is absolute", A("a", 1, 4, Declarado(0)), "-2013", "E", "2013"},
      {"signed negative", SA("s", 1, 16, Declarado(0)), "-1234", "E", "N000000000001234"},
      {"signed with comma", SA("s", 1, 16, Declarado(0)), "12,50", "E", " 000000000000000"},
      {"pesetas to cents", Pts("p", 1, 15, Declarado(0)), "1000", "P", "000000000000601"},
      {"euros unchanged", Pts("p", 1, 15, Declarado(0)), "1000", "E", "000000000001000"},
      {"pesetas rounded up", Pts("p", 1, 15, Declarado(0)), "500", "P", "000000000000301"},
      {"negative pesetas", Pts("p", 1, 15, Declarado(0)), "-1000", "P", "-000000000000601"},
      {"key G", Key("k", 1, 1, Declarado(0)), "G", "E", "A"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(Written(row.field, row.value, row.moneda), row.written) << row.rule;
  }
}

TEST(LayoutTest, NumbersThatAreNotNumbersAndNullTextsRaise) {
  const struct {
    const char* rule;
    Field field;
    Variant value;
    int32_t error;
  } rows[] = {
      {"empty number", N("n", 1, 2, Declarado(0)), "", errc::kTypeMismatch},
      {"empty pesetas", Pts("p", 1, 15, Declarado(0)), "", errc::kTypeMismatch},
      {"Null text", T("t", 1, 9, Declarado(0)), Variant::Null(), errc::kInvalidUseOfNull},
      {"element past the buffer", T("t", 1, 9, Declarado(5)), "x", errc::kSubscriptOutOfRange},
  };
  for (const auto& row : rows) {
    EXPECT_RAISES(Written(row.field, row.value), row.error) << row.rule;
  }
}

TEST(LayoutTest, ATableTypoIsCaughtBeforeAnythingIsWritten) {
  constexpr std::array shifted = {Const(1, "2"), Const(2, "347"), T("nifo", 6, 9, Declarado(0))};
  constexpr std::array sound = {Const(1, "2"), Const(2, "347"), T("nifo", 5, 9, Declarado(0))};
  constexpr std::array wrong_constant = {Const(1, "2"), Field{"347", 2, 4, Kind::kConstant,
                                                              Literal("347")}};
  EXPECT_EQ(FaultyField(Layout{"shifted", 13, shifted}), 2);
  EXPECT_EQ(FaultyField(Layout{"constant", 5, wrong_constant}), 1);
  EXPECT_EQ(FaultyField(Layout{"too short", 14, sound}), 3);
  EXPECT_EQ(FaultyField(Layout{"sound", 13, sound}), -1);
  constexpr std::array no_span = {TT("nifo", 1, 9, Estatal(26, 18))};
  EXPECT_EQ(FaultyField(Layout{"state field backwards", 9, no_span}), 0);

  const Variant record = test::Buffer({"B20000001"});
  RecordInput input;
  input.record = &record;
  const auto error = test::ErrorOf([&] { WriteRecord(Layout{"Reg2 prueba", 13, shifted}, input); });
  ASSERT_TRUE(error);
  EXPECT_EQ(error->Number(), errc::kInternalError);
  EXPECT_NE(error->Description().find("Reg2 prueba: field 3 (nifo)"), std::string::npos)
      << error->Description();
  EXPECT_EQ(WriteRecord(Layout{"sound", 13, sound}, input), "2347B20000001");
}

TEST(LayoutTest, AWatchNamesTheFirstFieldThatDoesNotFit) {
  constexpr std::array fields = {Mask("m", 1, 2, Declarado(0)), N("n", 3, 2, Declarado(1))};
  const Layout layout{"prueba", 4, fields};
  const struct {
    const char* rule;
    Variant record;
    const char* field;  // nullptr: every field fits
    const char* text;
  } rows[] = {
      {"both fit", test::Buffer({"1", "2"}), nullptr, ""},
      {"too many digits", test::Buffer({"1", "123"}), "n", "123"},
      {"one short, one long: the length is right", test::Buffer({"", "1234"}), "m", ""},
  };
  for (const auto& row : rows) {
    RecordInput input;
    input.record = &row.record;
    MisfitWatch watch;
    const std::string written = WriteRecord(layout, input);
    if (row.field == nullptr) {
      EXPECT_FALSE(watch.First()) << row.rule;
      continue;
    }
    ASSERT_TRUE(watch.First()) << row.rule << ": " << written;
    EXPECT_EQ(watch.First()->field->name, row.field) << row.rule;
    EXPECT_EQ(watch.First()->text, row.text) << row.rule;
    EXPECT_EQ(watch.First()->layout, "prueba") << row.rule;
  }

  const Variant fits = test::Buffer({"1", "2"}), long_n = test::Buffer({"1", "123"});
  RecordInput first, second;
  first.record = &fits;
  second.record = &long_n;
  MisfitWatch outer;
  WriteRecord(layout, first);
  {
    MisfitWatch inner;
    WriteRecord(layout, second);
    EXPECT_TRUE(inner.First());
  }
  EXPECT_FALSE(outer.First()) << "the inner watch took it";
  WriteRecord(layout, second);
  ASSERT_TRUE(outer.First());
  EXPECT_EQ(outer.First()->record, 1) << "the second record this watch saw";
}

}  // namespace
}  // namespace zerbal::fileformat
