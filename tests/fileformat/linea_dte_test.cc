#include "fileformat/linea_dte.h"

#include "fixtures.h"
#include "testutil.h"

namespace zerbal::fileformat {
namespace {

using test::Pad;

TEST(LineaDteTest, OneDeclarantIn162Characters) {
  Variant dte = test::Declarante();
  dte(2) = test::kRazon45;
  const std::string expected = "12345678Z" + test::kRazon40 + "CL" + Pad("Kale Nagusia", 20) +
                               "00012" + "  " "B " "3 " "izq" + "20" + Pad("Donostia", 12) +
                               "5  " + "943" + "123456 " + Pad("Ane", 40) + "0  " "654321 ";
  EXPECT_TRUE(test::SameRecord(GenerarLineaDte(dte), expected))
      << "municipality before the postal-code digits";

  dte(11) = "20005";
  EXPECT_EQ(Mid(GenerarLineaDte(dte), 100, 3), "005") << "last three characters only";
  dte(5) = "";
  EXPECT_RAISES(GenerarLineaDte(dte), 13) << "street number";
  dte(5) = 12;
  dte(12) = Variant::Null();
  EXPECT_RAISES(GenerarLineaDte(dte), 94) << "municipality";
}

}  // namespace
}  // namespace zerbal::fileformat
