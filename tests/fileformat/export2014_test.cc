#include "fileformat/export2014.h"

#include <functional>

#include "fileformat/export2011.h"
#include "fixtures.h"
#include "testutil.h"

namespace zerbal {
namespace {

using test::Blanks;
using test::Pad;
using test::SameRecord;

// Positions 1-127 of record 0 for the fixture's presenter, 2 declarants and 5
// records; 20001 comes back whole from its last digits "1".
std::string Reg0Hasta127(const std::string& year) {
  return "0" "347" + year + "20" "B20456786" + Pad(test::kNombrePres, 40) + "CL" +
         Pad("Kale Nagusia", 20) + "00012" "20001" + Pad("Donostia", 12) + "943" "6543210" +
         "00002" "000000005";
}

TEST(Export2014Test, Reg0IsThePresenterAndTheCounts) {
  const std::string expected = Reg0Hasta127("2014") + Blanks(373);
  EXPECT_TRUE(SameRecord(Export2014::GenerarReg0(test::Presentador(), 2, 5, 2014), expected));
  EXPECT_TRUE(SameRecord(Export2011::GenerarReg0(test::Presentador(), 2, 5, 2014), expected))
      << "2011 to 2013 write the 2014 record";

  Variant presentador = test::Presentador();
  presentador(11) = "001";  // the three digits in full give the same postal code
  const std::string record = Export2014::GenerarReg0(presentador, 2, 5, 2014);
  EXPECT_EQ(Mid(record, 87, 5), "20001");
}

// Positions 1-185 of record 1 for the fixture's declarant and these totals.
std::string Reg1Hasta185(const std::string& year) {
  return "1" "347" + year + "20" "12345678Z" + Pad(test::kNombreDte, 40) +
         "000000004" " " "000000000001500" +  // A: the later row of the key
         "000000003" "N" "000000000000500" +  // B
         "000000001" " " "000000000000250" +  // C, given in lower case
         "000000000" " " "000000000000000" +  // D
         "000000000" " " "000000000000000" +  // E
         "E";
}

Variant TotalesConClavesMezcladas() {
  return test::Totales({{"a", "1000", "2"},
                        {"B", "-500", "3"},
                        {"F", "700", "1"},
                        {"G", "800", "1"},
                        {"c", "250", "1"},
                        {"A", "1500", "4"}});
}

TEST(Export2014Test, Reg1TotalsKeysAToEOnly) {
  const std::string expected = Reg1Hasta185("2014") + Blanks(312) + "AYU";
  EXPECT_TRUE(SameRecord(
      Export2014::GenerarReg1(test::Declarante(), TotalesConClavesMezcladas(), "E", 2014),
      expected));
  EXPECT_TRUE(SameRecord(
      Export2011::GenerarReg1(test::Declarante(), TotalesConClavesMezcladas(), "E", 2012),
      Reg1Hasta185("2012") + Blanks(315)))
      << "2011 to 2013 end in blanks, without AYU";

  const std::string none = Export2014::GenerarReg1(test::Declarante(), Variant::Null(), "E", 2014);
  std::string empty_groups;
  for (int key = 0; key < 5; ++key) empty_groups += "000000000" " " "000000000000000";
  EXPECT_EQ(Mid(none, 60, 125), empty_groups) << "no operations";
  EXPECT_EQ(Len(none), 500);
}

TEST(Export2014Test, Reg2OneOperationWithSignsAndInterleavedQuarters) {
  const std::string expected =
      "2" "347" "2014" "20" "12345678Z" + std::string("B") + "B20000001" + test::kRazon40 +
      " " "28" "00" " " + "N000000000001234" + " " "X" + "000000000005000" +
      " 000000000000700" + "2013" +
      " 000000000000011" " 000000000000001" +  // quarter 1: operations, then impmobt1
      "N000000000000022" " 000000000000002" +  // quarter 2
      " 000000000000033" " 000000000000003" +  // quarter 3
      " 000000000000000" " 000000000000004" +  // quarter 4: 12,50 is no amount
      "FR" + Pad("12345678901", 15) + "X" " " " " + "N000000000000009" + Blanks(208);
  EXPECT_TRUE(SameRecord(
      Export2014::GenerarReg2(2014, test::Declarado(), test::Declarante(), "E"), expected));
}

TEST(Export2014Test, Reg3OneRental) {
  const std::string expected =
      "3" "347" "2014" "20" "12345678Z" + std::string("A20111111") + Pad(test::kRazonArr, 40) +
      "N000000000060000" + "20" + Blanks(3) + Pad("Hondarribia", 24) +
      Pad("1234567AB1234C0001XY", 25) + "CL" + Pad("Nagusia", 25) + "00007" + "  " "2 " "A " +
      Blanks(324);
  const Variant record =
      Export2014::GenerarReg3(2014, test::Arrendamiento(), test::Declarante(), "E");
  ASSERT_EQ(record.Kind(), VarKind::kString);
  EXPECT_TRUE(SameRecord(record.AsString(), expected));
}

TEST(Export2014Test, BadFieldsRaiseTheirNumbers) {
  const auto with = [](Variant buffer, int32_t element, Variant value) {
    buffer(element) = std::move(value);
    return buffer;
  };
  const Variant dte = test::Declarante();
  const Variant op = test::Declarado();
  const Variant arr = test::Arrendamiento();
  const Variant null = Variant::Null();
  const struct {
    const char* field;
    std::function<void()> write;
    int32_t error;
  } rows[] = {
      {"street number empty",
       [&] { Export2014::GenerarReg0(with(test::Presentador(), 5, ""), 1, 1, 2014); }, 13},
      {"presenter name Null",
       [&] { Export2014::GenerarReg0(with(test::Presentador(), 2, null), 1, 1, 2014); }, 94},
      {"declarant province empty",
       [&] { Export2014::GenerarReg1(with(dte, 10, ""), null, "E", 2014); }, 13},
      {"provo empty", [&] { Export2014::GenerarReg2(2014, with(op, 1, ""), dte, "E"); }, 13},
      {"razon Null", [&] { Export2014::GenerarReg2(2014, with(op, 4, null), dte, "E"); }, 94},
      {"numeroa s/n", [&] { Export2014::GenerarReg3(2014, with(arr, 10, "s/n"), dte, "E"); }, 13},
      {"operation not loaded", [&] { Export2014::GenerarReg2(2014, null, dte, "E"); }, 13},
  };
  for (const auto& row : rows) EXPECT_RAISES(row.write(), row.error) << row.field;
}

}  // namespace
}  // namespace zerbal
