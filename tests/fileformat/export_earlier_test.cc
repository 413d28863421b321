#include "fileformat/export2007.h"
#include "fileformat/export2008.h"
#include "fileformat/export2011.h"
#include "fixtures.h"
#include "testutil.h"

namespace zerbal {
namespace {

using test::Blanks;
using test::Pad;
using test::SameRecord;

const std::string kZeroGroup = "000000000" "000000000000000";

TEST(ExportEarlierTest, Reg0Of2010AndBeforeIs180Long) {
  const std::string expected = "0" "347" "2009" "20" "B20456786" + Pad(test::kNombrePres, 40) +
                               "CL" + Pad("Kale Nagusia", 20) + "00012" "20001" +
                               Pad("Donostia", 12) + "943" "6543210" "00002" "000000005" +
                               Blanks(53);
  EXPECT_TRUE(SameRecord(Export2007::GenerarReg0(test::Presentador(), 2, 5, 2009), expected));
}

TEST(ExportEarlierTest, Reg1SumsInPesetasBecomeEuroCents) {
  const Variant totales = test::Totales({{"a", "1000", "2"}, {"G", "5", "1"}});
  const std::string head = "1" "347" "2005" "20" "12345678Z" + Pad(test::kNombreDte, 40);
  const std::string others = kZeroGroup + kZeroGroup + kZeroGroup + kZeroGroup + "E";
  EXPECT_TRUE(SameRecord(Export2007::GenerarReg1(test::Declarante(), totales, "P", 2005),
                         head + "000000002" "000000000000601" + others));
  EXPECT_TRUE(SameRecord(Export2008::GenerarReg1(test::Declarante(), totales, "E", 2005),
                         head + "000000002" "000000000001000" + others));
}

Variant OperacionAntigua(const char* clave, const char* paiso) {
  Variant op = test::Declarado();
  op(5) = clave;
  op(2) = paiso;
  op(1) = "1";
  op(6) = "1000";
  return op;
}

TEST(ExportEarlierTest, Reg2Of2008To2010) {
  const std::string expected = "2" "347" "2009" "20" "12345678Z" + std::string("F") +
                               "B20000001" + test::kRazon40 + " " "01" "FR " +
                               "000000000000601" + " " "X" + "000000000005000" +
                               "000000000000700" + Blanks(58);
  EXPECT_TRUE(SameRecord(
      Export2008::GenerarReg2(2009, OperacionAntigua("F", "FR"), test::Declarante(), "P"),
      expected))
      << "importe converted; impmet and impinm not; the key as it stands";
}

TEST(ExportEarlierTest, Reg2Of2007AndBeforeConvertsKeysAndCountryCodes) {
  const std::string expected = "2" "347" "2006" "20" "12345678Z" "A" "B20000001" + test::kRazon40 +
                               " " "01" "004" "000000000001000" " " "X" + Blanks(88);
  EXPECT_TRUE(SameRecord(
      Export2007::GenerarReg2(2006, OperacionAntigua("G", "4"), test::Declarante(), "E"), expected))
      << "key G is A, country 4 is 004";
}

TEST(ExportEarlierTest, Reg3WithoutSignPosition) {
  Variant arr = test::Arrendamiento();
  arr(5) = "60000";
  const auto expected = [](const char* year, const char* at86, int trailing) {
    return "3" "347" + std::string(year) + "20" "12345678Z" "A20111111" +
           Pad(test::kRazonArr, 40) + "000000000060000" "20" + at86 + Pad("Hondarribia", 24) +
           Pad("1234567AB1234C0001XY", 25) + "CL" + Pad("Nagusia", 25) + "00007" "  " "2 " "A " +
           Blanks(trailing);
  };
  const Variant dte = test::Declarante();
  EXPECT_TRUE(SameRecord(Export2011::GenerarReg3(2012, arr, dte, "E").AsString(),
                         expected("2012", "   ", 325)));
  EXPECT_TRUE(SameRecord(Export2008::GenerarReg3(2009, arr, dte, "E").AsString(),
                         expected("2009", "   ", 5)));
  EXPECT_TRUE(SameRecord(Export2007::GenerarReg3(2006, arr, dte, "E").AsString(),
                         expected("2006", "000", 5)));
}

TEST(ExportEarlierTest, AmountsReadAsNumbersRaise13) {
  Variant op = OperacionAntigua("A", "FR");
  op(8) = "";
  EXPECT_RAISES(Export2008::GenerarReg2(2009, op, test::Declarante(), "E"), 13) << "impinm";
  const Variant totales = test::Totales({{"B", "", "1"}});
  EXPECT_RAISES(Export2008::GenerarReg1(test::Declarante(), totales, "P", 2009), 13) << "sum";
}

}  // namespace
}  // namespace zerbal
