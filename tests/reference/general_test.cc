#include "reference/general.h"

#include "testutil.h"

namespace zerbal::General {
namespace {

TEST(GeneralTest, BCReadsOnlyDigitsAndMinus) {
  const struct {
    Variant value;
    double number;
  } rows[] = {
      {"", 0},       {"12.5", 0},  {"abc", 0},      {"-42", -42}, {"0012", 12},
      {"--5", 0},    {Variant(), 0}, {-1234.0, -1234}, {12.5, 0},   {7, 7},
  };
  for (const auto& row : rows) EXPECT_EQ(BC(row.value), row.number) << DebugString(row.value);
  const auto error = test::ErrorOf([] { BC(Variant::Null()); });
  ASSERT_TRUE(error);
  EXPECT_EQ(error->Number(), errc::kInvalidUseOfNull);
  EXPECT_EQ(error->Description(), "General.BC\r\nInvalid use of Null");
  EXPECT_TRUE(SoloDigitos(""));
  EXPECT_FALSE(SoloDigitos("+1"));
  EXPECT_FALSE(SoloDigitos("1 2"));
}

TEST(GeneralTest, FixedWidthFields) {
  EXPECT_EQ(FormatoNumero(-7, 4, "00"), "-0007");
  EXPECT_EQ(FormatoImporte(-1234, 15, "0"), "000000000001234");
  EXPECT_EQ(FormatoImporte(99999999999, 15, "0"), "000099999999999");

  const struct {
    std::string text;
    int16_t width;
    const char* fill;
    const char* field;
    const char* cut;  // what the caller's variable holds afterwards
  } rows[] = {
      {"ABCDEFGHIJ", 4, " ", "ABCD", "ABCD"},
      {"AB", 4, "0", "AB00", "AB"},
      {"", 3, " ", "   ", ""},
      {"Ñoño", 6, "-", "Ñoño--", "Ñoño"},
      {"Ibáñez Etxeberria", 6, " ", "Ibáñez", "Ibáñez"},
  };
  for (auto row : rows) {
    EXPECT_EQ(FormatoTexto(row.text, row.width, row.fill), row.field) << row.field;
    EXPECT_EQ(row.text, row.cut);
  }
  EXPECT_EQ(Signo(-0.5, 0), "N");
  EXPECT_EQ(Signo(-0.5, 1), "-");
  EXPECT_EQ(Signo(0, 0), "");
  EXPECT_EQ(Signo(0, 1), "");
}

TEST(GeneralTest, OperationKeysOfEarlierYears) {
  const struct {
    const char* key;
    const char* converted;
  } rows[] = {{"f", "B"}, {"F", "B"}, {"g", "A"}, {"c", "c"}, {"E", "E"}, {"H", ""}, {"", ""},
              {"AB", ""}};
  for (const auto& row : rows) EXPECT_EQ(ConvertirClave(row.key), row.converted) << row.key;
}

TEST(GeneralTest, CountryCodesBothWays) {
  // Each code of the table both ways: lookup_data_test.cc.
  const struct {
    const char* code;
    int16_t mode;
    const char* converted;
  } rows[] = {
      {"004", 0, "DE"}, {"999", 0, " "}, {"fr", 1, " "},  {"QQ", 1, " "},
      {"", 1, ""},      {"  ", 0, "  "}, {" DE ", 1, "4"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(CodigoPais(row.code, row.mode), row.converted) << row.code << " mode " << row.mode;
  }
}

TEST(GeneralTest, ProvinceOrCountryOfTheStateLayout) {
  std::string province = "20";
  EXPECT_EQ(ConvertirProvPais(province), "20   ");
  EXPECT_EQ(province, "20");
  std::string foreign = "99DE";
  EXPECT_EQ(ConvertirProvPais(foreign), "994  ");
  EXPECT_EQ(foreign, "4");
  std::string padded = " 07  ";
  EXPECT_EQ(ConvertirProvPais(padded), "07   ");
  std::string unknown = "99QQ";
  EXPECT_EQ(ConvertirProvPais(unknown), "99   ");
}

}  // namespace
}  // namespace zerbal::General
