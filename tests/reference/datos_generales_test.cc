#include "zerbal/datos_generales.h"

#include "testutil.h"
#include "zerbal/declarante.h"

namespace zerbal {
namespace {

class DatosGeneralesTest : public test::DatabaseTest {
 protected:
  DatosGeneralesTest() {
    datos_.mdbmod(mod_);
    datos_.mdblec(lec_);
  }
  cDatosGenerales datos_;
};

TEST_F(DatosGeneralesTest, DescriptionsInEitherLanguageUpperCased) {
  const struct {
    int32_t idioma;
    const char* provincia;
    const char* via;
    const char* clave;
    const char* pais;
    const char* intra;
  } rows[] = {
      {0, "ÁLAVA", "CALLE", "VENTAS DE AGENCIAS DE VIAJES", "REINO UNIDO", "FRANCIA"},
      {1, "ARABA", "KALEA", "BIDAIA-AGENTZIEN SALMENTAK", "ERRESUMA BATUA", "FRANTZIA"},
      {-1, "ARABA", "KALEA", "BIDAIA-AGENTZIEN SALMENTAK", "ERRESUMA BATUA", "FRANTZIA"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(datos_.ObtenerNombreProvincia("01", row.idioma), row.provincia) << row.idioma;
    EXPECT_EQ(datos_.ObtenerDescriVia("CL", row.idioma), row.via) << row.idioma;
    EXPECT_EQ(datos_.ObtenerDesClave("F", "E", row.idioma), row.clave) << row.idioma;
    EXPECT_EQ(datos_.ObtenerDesPais(890, row.idioma), row.pais) << row.idioma;
    EXPECT_EQ(datos_.ObtenerNombrePaisIntra("FR", row.idioma), row.intra) << row.idioma;
  }
  EXPECT_EQ(datos_.ObtenerDesClave("F", "P", 1), datos_.ObtenerDesClave("F", "E", 1))
      << "the currency changes nothing";
}

TEST_F(DatosGeneralesTest, UnknownCodesAndTheSixteenBitCountryCode) {
  EXPECT_EQ(datos_.ObtenerNombreProvincia("99", 0), "") << "an unknown code is no error";
  EXPECT_EQ(datos_.ObtenerDescriVia("", 1), "");
  EXPECT_EQ(datos_.ObtenerDesClave("H", "E", 0), "");
  EXPECT_EQ(datos_.ObtenerNombrePaisIntra("ZZ", 1), "");
  EXPECT_EQ(datos_.ObtenerDesPais(999, 0), "");
  EXPECT_EQ(datos_.ObtenerDesPais(4, 1), "ALEMANIA") << "codes are numbers, not texts";

  const struct {
    int32_t codigo;
    bool overflows;
  } codes[] = {{32767, false}, {-32768, false}, {32768, true}, {-32769, true}, {958 + 65536, true}};
  for (const auto& row : codes) {
    if (row.overflows) {
      EXPECT_RAISES(datos_.ObtenerDesPais(row.codigo, 0), errc::kOverflow) << row.codigo;
    } else {
      EXPECT_EQ(datos_.ObtenerDesPais(row.codigo, 0), "") << row.codigo;
    }
  }
}

TEST_F(DatosGeneralesTest, StoredCaseAndNullsOfTheLookupDatabase) {
  test::Exec(lec_, "UPDATE TOperaciones SET descripcionc = 'Ventas de Agencias' WHERE codigo = 'F'");
  EXPECT_EQ(datos_.ObtenerDesClave("F", "E", 0), "VENTAS DE AGENCIAS");
  const Variant all = datos_.ObtenerDescripciones(0);
  ASSERT_EQ(all.AsArray().UBound(2), 7);
  bool found = false;
  for (int32_t k = 1; k <= 7; ++k) found |= all(1, k) == Variant("Ventas de Agencias");
  EXPECT_TRUE(found) << "the list keeps the stored case";
  test::Exec(lec_, "UPDATE TPROVINCIAS SET PRO_EUS = NULL WHERE PRO_ID = '20'");
  EXPECT_RAISES(datos_.ObtenerNombreProvincia("20", 1), errc::kInvalidUseOfNull);
  test::Exec(lec_, "DELETE FROM TOperaciones");
  EXPECT_TRUE(datos_.ObtenerDescripciones(1).IsNull());
}

TEST_F(DatosGeneralesTest, UpdateAddressesByRow) {
  EXPECT_EQ(datos_.RecogerRutaURL(1).rfind("https://actualizaciones.", 0), 0u);
  EXPECT_EQ(datos_.RecogerRutaURL(2).rfind("https://descargas.", 0), 0u);
  EXPECT_EQ(datos_.RecogerRutaURL(0), datos_.RecogerRutaURL(2)) << "any value but 1: row 2";
  EXPECT_EQ(datos_.ObtenerURLAct(), datos_.RecogerRutaURL(1));
  test::Exec(lec_, "DELETE FROM tgeneral WHERE URLAct LIKE '*descargas*'");
  EXPECT_RAISES(datos_.RecogerRutaURL(2), errc::kNoCurrentRecord);
  test::Exec(lec_, "DELETE FROM tgeneral");
  EXPECT_EQ(datos_.ObtenerURLAct(), "");
}

TEST_F(DatosGeneralesTest, SettingsOfTheUser) {
  EXPECT_EQ(datos_.ObtenerIdioma(), "C");
  EXPECT_EQ(datos_.ObtenerActOnline(), 0);
  datos_.CambiarIdioma(" E ");
  EXPECT_EQ(datos_.ObtenerIdioma(), "E");
  EXPECT_TRUE(datos_.GuardarActOnline(-1).IsEmpty());
  EXPECT_EQ(datos_.ObtenerActOnline(), -1);

  test::Exec(mod_, "DELETE FROM tGeneral");
  EXPECT_EQ(datos_.ObtenerIdioma(), "C");
  EXPECT_EQ(datos_.ObtenerActOnline(), 0);
  datos_.CambiarIdioma("E");
  datos_.GuardarActOnline(1);
  EXPECT_TRUE(test::Rows(mod_, "SELECT * FROM tGeneral").empty()) << "no row, nothing changed";
}

TEST_F(DatosGeneralesTest, QueriesChecksAndCounts) {
  const Variant rows =
      datos_.CargarResultado("SELECT PRO_ID, PRO_EUS FROM TPROVINCIAS WHERE PRO_ID < '03'");
  EXPECT_EQ(DebugString(rows),
            "(0 to 2, 0 to 2) {[Empty, Empty, Empty]; [\"01\", \"Araba\", Empty]; "
            "[\"02\", \"Albacete\", Empty]}");
  EXPECT_TRUE(datos_.CargarResultado("SELECT * FROM TPROVINCIAS WHERE PRO_ID = 'x'").IsNull());
  EXPECT_RAISES(datos_.CargarResultado("SELECT * FROM TDeclarante"), errc::kSyntaxError)
      << "the lookup database has no declarants";

  EXPECT_FALSE(datos_.ValidaNifCif("54362315"));
  EXPECT_TRUE(datos_.ValidaNifCif("54362315", true));
  EXPECT_TRUE(datos_.ValidaNifIntra("DE136695976", "DE"));
  EXPECT_FALSE(datos_.ValidaNifIntra("DE136695976", "FR"));

  EXPECT_EQ(datos_.NumeroDeclarantes(), 0);
  cDeclarante declarante;
  declarante.mdbmod(mod_);
  Variant buffer(Array(0, 17));
  buffer(11) = "1";
  declarante.GuardarDeclarante(buffer);
  declarante.GuardarDeclarante(buffer);
  EXPECT_EQ(datos_.NumeroDeclarantes(), 2);
}

}  // namespace
}  // namespace zerbal
