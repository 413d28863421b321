#include "zerbal/declaraciones.h"

#include "prefijo.h"

namespace zerbal {
namespace {

using Rows = std::vector<std::vector<Variant>>;

class DeclaracionesTest : public test::DatabaseTest {
 protected:
  DeclaracionesTest() { declaraciones_.mdbmod(mod_); }

  void AddOperation(int32_t declaration, const std::string& key, double amount,
                    const std::string& country = "FR") {
    test::Exec(mod_, "INSERT INTO tOperadores (coddeclar, provo, paiso, nifo, razon, claveopo, "
                     "importe, impmet, impinm, impopeT1, impopeT2, impopeT3, impopeT4, impmobT1, "
                     "impmobT2, impmobT3, impmobT4, ejerimpmet, impanudevopecaj) VALUES (" +
                         std::to_string(declaration) + ", 20, '" + country + "', 'N', 'R', '" +
                         key + "', " + std::to_string(amount) + ", 0, 0, 1, 2, 3, 4, 0, 0, 0, 0, 0, 0)");
  }
  void AddRental(int32_t declaration) {
    test::Exec(mod_, "INSERT INTO tArrendamientos (coddeclar, provi, prova, paiso, importe, "
                     "numeroa) VALUES (" + std::to_string(declaration) + ", 20, 20, 'FR', 500, 1)");
  }
  cDeclaraciones declaraciones_;
};

TEST_F(DeclaracionesTest, ListedByYearWithTheirCounts) {
  EXPECT_TRUE(declaraciones_.ObtenerDeclaraciones(1).IsNull());
  const int32_t later = declaraciones_.GuardarDeclaracion(2013, "E", 1);
  const int32_t earlier = declaraciones_.GuardarDeclaracion(2011, "P", 1);
  declaraciones_.GuardarDeclaracion(2012, "E", 2);
  AddOperation(later, "A", 1);
  AddOperation(later, "B", 2);
  AddRental(earlier);
  const Variant list = declaraciones_.ObtenerDeclaraciones(1);
  ASSERT_EQ(list.AsArray().UBound(1), 5);
  ASSERT_EQ(list.AsArray().UBound(2), 2);
  const Variant expected[2][5] = {{earlier, 2011, "P", int16_t{0}, int16_t{1}},
                                  {later, 2013, "E", int16_t{2}, int16_t{0}}};
  for (int32_t k = 1; k <= 2; ++k) {
    for (int32_t c = 0; c <= 4; ++c) EXPECT_EQ(list(c, k), expected[k - 1][c]) << c << "," << k;
    EXPECT_TRUE(list(5, k).IsEmpty());
  }
  EXPECT_EQ(declaraciones_.GuardarDeclaracion(2013, "E", 1), 4) << "the same year again: a new row";
  EXPECT_EQ(declaraciones_.ObtenerDeclaracion(1, 2011), earlier);
  EXPECT_EQ(declaraciones_.ObtenerDeclaracion(2, 2011), 0);
}

TEST_F(DeclaracionesTest, CountsAreSixteenBitNumbers) {
  const int32_t d = declaraciones_.GuardarDeclaracion(2014, "E", 1);
  AddOperation(d, "A", 1);
  for (int doubling = 0; doubling < 15; ++doubling) {
    test::Exec(mod_, "INSERT INTO tOperadores (coddeclar) SELECT coddeclar FROM tOperadores");
  }
  const auto error = test::ErrorOf([&] { declaraciones_.ObtenerDeclaraciones(1); });
  ASSERT_TRUE(error) << "32,768 operations";
  EXPECT_EQ(error->Number(), errc::kOverflow);
  EXPECT_EQ(error->Description(),
            "cDatosGeneralT.ObtenerDeclaraciones cTDeclaraciones.ObtenerDeclaraciones "
            "cTDeclaraciones.ContarDeclarados Overflow");
  test::Exec(mod_, "DELETE FROM tOperadores WHERE codope = 1");
  EXPECT_EQ(declaraciones_.ObtenerDeclaraciones(1)(3, 1), Variant(int16_t{32767}));
}

TEST_F(DeclaracionesTest, CopiedToAnotherYearLeavingTheSourceAlone) {
  const int32_t source = declaraciones_.GuardarDeclaracion(2010, "E", 1);
  AddOperation(source, "A", 1000);
  AddOperation(source, "F", -50, "4");
  AddRental(source);
  const Rows before = test::Rows(mod_, "SELECT * FROM tOperadores ORDER BY codope");

  const int32_t copy = declaraciones_.DuplicarDeclaracion(2010, 2011, "E", source);
  EXPECT_EQ(copy, source + 1);
  EXPECT_EQ(test::Rows(mod_, "SELECT coddecr, ejercicio, moneda FROM TDeclaraciones WHERE coddecla = " +
                                 std::to_string(copy)),
            (Rows{{1, 2011, "E"}}));
  EXPECT_EQ(test::Rows(mod_, "SELECT claveopo, importe, paiso, impopeT4 FROM tOperadores WHERE "
                             "coddeclar = " + std::to_string(copy) + " ORDER BY codope"),
            (Rows{{"A", 1000.0, "FR", 1000.0}, {"F", -50.0, "DE", -50.0}}))
      << "2010 into 2011 (the other way the negative row would go): the fourth quarter is the "
         "amount, a numeric country converted";
  EXPECT_EQ(declaraciones_.ObtenerTotalArrendamientos(copy), 1);
  EXPECT_EQ(test::Rows(mod_, "SELECT * FROM tOperadores WHERE coddeclar = " +
                                 std::to_string(source) + " ORDER BY codope"),
            before);
  EXPECT_EQ(declaraciones_.ObtenerEjercicioDcion(copy), "2011");
  EXPECT_EQ(declaraciones_.ObtenerMonedaDcion(Variant("2")), "E");
}

TEST_F(DeclaracionesTest, DeletingOneDeclarationTakesItsRowsOnly) {
  const int32_t gone = declaraciones_.GuardarDeclaracion(2014, "E", 1);
  const int32_t kept = declaraciones_.GuardarDeclaracion(2013, "E", 1);
  for (int32_t d : {gone, kept}) {
    AddOperation(d, "A", 1);
    AddRental(d);
  }
  declaraciones_.EliminarDeclaracion(gone);
  EXPECT_EQ(test::Rows(mod_, "SELECT coddecla FROM TDeclaraciones"), (Rows{{kept}}));
  EXPECT_EQ(test::Rows(mod_, "SELECT DISTINCT coddeclar FROM tOperadores"), (Rows{{kept}}));
  EXPECT_EQ(test::Rows(mod_, "SELECT DISTINCT coddeclar FROM tArrendamientos"), (Rows{{kept}}));
}

TEST_F(DeclaracionesTest, MaxEjerMonChoosesItsQuery) {
  EXPECT_TRUE(declaraciones_.MaxEjerMon(false).IsNull());
  declaraciones_.GuardarDeclaracion(2001, "E", 1);
  declaraciones_.GuardarDeclaracion(2009, "P", 1);
  EXPECT_EQ(DebugString(declaraciones_.MaxEjerMon(false)),
            "(0 to 2, 0 to 1) {[Empty, Empty, Empty]; [\"2009\", \"P\", Empty]}");
  EXPECT_EQ(declaraciones_.MaxEjerMon(true)(0, 1), Variant("2001"));
  EXPECT_TRUE(declaraciones_.MaxEjerMon(true, 5).IsNull()) << "euro years from 2002 only";
  EXPECT_TRUE(declaraciones_.MaxEjerMon(true, 2010).IsNull()) << "any lowest year: still 2002";
  declaraciones_.GuardarDeclaracion(2002, "E", 1);
  EXPECT_EQ(declaraciones_.MaxEjerMon(true, 2010)(0, 1), Variant("2002"));
}

TEST_F(DeclaracionesTest, UnknownCodesAndBrokenDatabasesGiveTheirPrefixes) {
  cDeclaraciones lost;
  lost.mdbmod((dir_ / "gone.db").string());
  test::ExpectPrefixes({
      {"clDeclaraciones.ObtenerEjercicioDcion No current record.",
       [&] { declaraciones_.ObtenerEjercicioDcion(9); }},
      {"cDeclaraciones.ObtenerMonedaDcion No current record.",
       [&] { declaraciones_.ObtenerMonedaDcion(9); }},
      {"cDeclaraciones.ObtenerMonedaDcion Type mismatch",
       [&] { declaraciones_.ObtenerMonedaDcion("x"); }},
      {"Could not", [&] { lost.EliminarDeclaracion(1); }},  // no handler: raised unchanged
      {"cDatosGeneralT.ObtenerDeclaraciones Could not", [&] { lost.ObtenerDeclaraciones(1); }},
  });
}

}  // namespace
}  // namespace zerbal
