// Every check of the 2014 operation and rental lines: one row per rule, a
// valid line changed by the row, and the errors it must give, in order.

#include "import/importacion_2014.h"

#include "lineas.h"

namespace zerbal {
namespace {

using fileformat::kCamposReg2_2014;
using fileformat::kCamposReg3_2014;
using test::Errors;

struct Row {
  const char* name;
  std::vector<test::Change> changes;
  Errors errors;
};

const std::string kQ0 = " 000000000000000";
const std::vector<test::Change> kNoQuarters = {
    {"impopet1", kQ0}, {"impopet2", kQ0}, {"impopet3", kQ0}, {"impopet4", kQ0}};
const std::vector<test::Change> kAbroad = {{"provo", "99"}, {"paiso", "FR"}, {"nifo", ""}};

std::vector<test::Change> With(std::vector<test::Change> a, const std::vector<test::Change>& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}

const Errors k65x4 = {{65, ""}, {65, ""}, {65, ""}, {65, ""}};

class Importacion2014Test : public test::DatabaseTest {
 protected:
  Errors Declarado(const std::string& line, int16_t limit = 500) {
    return test::ErrorList(Importacion_2014::ValidarDeclarado_2014(
        Importacion_2014::LeerDeclarado_2014(line), limit, lec_, mod_, 2014, 2002, "1"));
  }
  Errors Arrendamiento(const std::string& line) {
    bool convertir = false;
    return test::ErrorList(Importacion_2014::ValidarArrendamiento_2014(
        Importacion_2014::LeerArrendamiento_2014(line, convertir), 174, lec_, mod_, 2014, 2002,
        "1"));
  }
};

TEST_F(Importacion2014Test, EveryRuleOfAnOperationLine) {
  const std::vector<Row> rows = {
      {"valid", {}, {}},
      {"form 348", {{"347", "348"}}, {{25, "348"}}},
      {"year with a letter: no 44", {{"ejercicio", "20A4"}}, {{43, "20A4"}}},
      {"year after the accepted ones", {{"ejercicio", "2015"}}, {{44, "2015"}}},
      {"name blank", {{"razon", ""}}, {{1, ""}}},
      {"key blank: no 50", {{"claveopo", ""}}, {{17, ""}}},
      {"key H", {{"claveopo", "H"}}, {{50, "H"}}},
      {"key in lower case", {{"claveopo", "a"}}, {{50, "a"}}},
      {"representative not R", {{"claverep", "Z"}}, {{34, "Z"}}},
      {"representative r", {{"claverep", "r"}}, {}},
      {"sign X and a letter: the sign check stands, the amount counts for nothing",
       {{"importe", "X00000000000010A"}},
       {{56, "X00000000000010A"}, {53, ""}, {55, ""}}},
      {"letter among the digits", {{"importe", " 0000000000010A0"}},
       {{36, "0000000000010A0"}, {53, ""}, {55, ""}}},
      {"negative amounts with N add up",
       {{"importe", "N000000000001000"}, {"impopet1", "N000000000000250"},
        {"impopet2", "N000000000000250"}, {"impopet3", "N000000000000250"},
        {"impopet4", "N000000000000250"}},
       {}},
      {"cash amount with a letter", {{"impmet", "00000000000010A"}}, {{36, "00000000000010A"}}},
      {"cash amount negative: 37 stands over 36", {{"impmet", "-00000000000010"}},
       {{37, "-00000000000010"}}},
      {"cash amount without its year", {{"impmet", "000000000000500"}}, {{52, ""}}},
      {"cash year without an amount", {{"ejerimpmet", "2013"}}, {{52, ""}}},
      {"cash year before 1900", {{"impmet", "000000000000500"}, {"ejerimpmet", "1899"}},
       {{51, "1899"}}},
      {"cash year after the year", {{"impmet", "000000000000500"}, {"ejerimpmet", "2015"}},
       {{51, "2015"}}},
      {"cash year with a letter", {{"ejerimpmet", "20A3"}}, {{57, "20A3"}}},
      {"insurance key Y", {{"opeseg", "Y"}}, {{38, "Y"}}},
      {"rental key Y", {{"opearr", "Y"}}, {{39, "Y"}}},
      {"insurance and rental keys: 40 from each", {{"opeseg", "X"}, {"opearr", "x"}},
       {{40, "X"}, {40, "x"}}},
      {"rental key with key C", {{"claveopo", "C"}, {"opearr", "X"}}, {{33, ""}}},
      {"cash-basis mark Y (the quarters all 0)", With({{"opeivacaja", "Y"}}, kNoQuarters),
       {{66, ""}}},
      {"cash-basis mark: a quarter given records 65, sums not checked",
       {{"opeivacaja", "X"}, {"impopet1", " 000000000000999"}}, k65x4},
      {"declarant H: the same", {{"dni_cifd", "H20000000"}, {"impopet1", " 000000000000999"}},
       k65x4},
      {"reverse-charge mark Y", {{"opeinvsujpas", "Y"}}, {{67, ""}}},
      {"customs mark Y", {{"operegposadu", "Y"}}, {{68, ""}}},
      {"cash-basis amount without its mark", {{"impanudevopecaj", " 000000000000100"}},
       {{69, ""}}},
      {"operation quarters do not add up", {{"impopet1", " 000000000000251"}}, {{53, ""}}},
      {"transfer quarters do not add up", {{"impmobt1", " 000000000000100"}}, {{54, ""}}},
      {"no amount at all", With({{"importe", kQ0}}, kNoQuarters), {{55, ""}}},
      {"non-resident", kAbroad, {}},
      {"non-resident with a NIF", {{"provo", "99"}, {"paiso", "FR"}}, {{26, "54362315K"}}},
      {"non-resident without a country", With(kAbroad, {{"paiso", ""}}), {{27, ""}, {49, "  "}}},
      {"non-resident, unknown country", With(kAbroad, {{"paiso", "fr"}}), {{49, "fr"}}},
      {"non-resident with the rental key", With(kAbroad, {{"opearr", "X"}}), {{29, "X"}}},
      {"non-resident, VAT number not valid",
       With(kAbroad, {{"siglaspaisintra", "FR"}, {"nifpaisintra", "04409414365"}}),
       {{58, "04409414365"}}},
      {"non-resident, valid VAT number",
       With(kAbroad, {{"siglaspaisintra", "FR"}, {"nifpaisintra", "04409414364"}}), {}},
      {"resident, NIF not valid", {{"nifo", "54362315Z"}}, {{32, "54362315Z"}}},
      {"resident abroad", {{"paiso", "FR"}}, {{35, "FR"}}},
      {"province with a letter", {{"provo", "2A"}}, {{20, "2A"}, {4, ""}}},
      {"province blank", {{"provo", ""}}, {{20, "  "}, {4, "  "}, {4, ""}}},
      {"province unknown", {{"provo", "00"}}, {{4, ""}}},
      {"province with an apostrophe", {{"provo", "'1"}}, {{20, "'1"}, {4, ""}}},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(Declarado(test::Changed(test::LineaDeclarado(), kCamposReg2_2014, row.changes)),
              row.errors)
        << row.name;
  }
  EXPECT_EQ(Declarado(Left(test::LineaDeclarado(), 69)), (Errors{{4, ""}, {4, ""}, {55, ""}}))
      << "cut after the name: the rest reads as empty";
  EXPECT_EQ(Declarado(test::LineaDeclarado(), 100), (Errors{{24, ""}})) << "total length, alone";
}

TEST_F(Importacion2014Test, EveryRuleOfARentalLine) {
  const std::vector<Row> rows = {
      {"valid", {}, {}},
      {"lessee blank: country OP, no 27", {{"nifa", ""}}, {}},
      {"six zeros are judged by the component", {{"nifa", "000000"}}, {{32, "000000"}}},
      {"lessee NIF not valid", {{"nifa", "X2482300A"}}, {{32, "X2482300A"}}},
      {"form 348", {{"347", "348"}}, {{25, "348"}}},
      {"year before the accepted ones", {{"ejercicio", "2001"}}, {{44, "2001"}}},
      {"name blank", {{"razon", ""}}, {{1, ""}}},
      {"sign X", {{"importe", "X000000000001000"}}, {{56, "X000000000001000"}}},
      {"amount blank: 36 and 41", {{"importe", ""}},
       {{36, std::string(16, ' ')}, {41, std::string(16, ' ')}}},
      {"street type unknown", {{"viaa", "ZZ"}}, {{2, ""}}},
      {"street blank", {{"domicilioa", ""}}, {{3, ""}}},
      {"street number with a letter", {{"numeroa", "0012A"}}, {{19, "0012A"}}},
      {"province unknown", {{"provi", "00"}}, {{4, ""}}},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(
        Arrendamiento(test::Changed(test::LineaArrendamiento(), kCamposReg3_2014, row.changes)),
        row.errors)
        << row.name;
  }
}

}  // namespace
}  // namespace zerbal
