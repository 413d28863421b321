#include "zerbal/declarado.h"

#include "base/convert.h"
#include "data/open.h"
#include "records/declarados/t_declarados.h"
#include "prefijo.h"

namespace zerbal {
namespace {

using records::cTDeclarados;
using Rows = std::vector<std::vector<Variant>>;

// A save buffer whose every element differs, so that a swapped column shows.
Variant Buffer(int32_t codope, int32_t declaracion) {
  return test::Buffer({codope, declaracion, 20, "FR", "B20456786", "Zubia D'Arrieta", "A", 100000.0,
                       700.0, 800.0, "R", "S", "T", 1301.0, 1302.0, 1303.0, 1304.0, 1701.0, 1702.0,
                       1703.0, 1704.0, 2013, "DE", "DE123456789", "X", "Y", "Z", 2700.0});
}

class DeclaradoTest : public test::DatabaseTest {
 protected:
  DeclaradoTest() { declarado_.mdbmod(mod_); }

  Rows Stored(const std::string& columns) {
    return test::Rows(mod_, "SELECT " + columns + " FROM tOperadores ORDER BY codope");
  }

  cDeclarado declarado_;
};

TEST_F(DeclaradoTest, NewRowsGetTheHighestKeyAndExistingRowsAreUpdated) {
  EXPECT_EQ(declarado_.GuardarDeclarado(Buffer(0, 7)), 1);
  EXPECT_EQ(declarado_.GuardarDeclarado(Buffer(0, 7)), 2);
  declarado_.EliminarDeclarado(2);
  EXPECT_EQ(declarado_.GuardarDeclarado(Buffer(0, 7)), 3) << "a deleted key is not reused";

  Variant changed = Buffer(1, 8);
  changed(4) = "A20000006";
  EXPECT_EQ(declarado_.GuardarDeclarado(changed), 1);
  EXPECT_EQ(Stored("codope, coddeclar, nifo"),
            (Rows{{1, 8, "A20000006"}, {3, 7, "B20456786"}}));

  EXPECT_EQ(declarado_.GuardarDeclarado(Buffer(-5, 9)), -5)
      << "a key below 1 is neither updated nor inserted";
  EXPECT_EQ(Stored("codope").size(), 2u);
}

TEST_F(DeclaradoTest, EveryColumnTravelsInItsBufferOrder) {
  declarado_.GuardarDeclarado(Buffer(0, 7));
  const Variant saved = Buffer(0, 7);

  const Variant loaded = declarado_.CargarDeclarado(1);
  ASSERT_EQ(loaded.AsArray().UBound(), 27);
  for (int32_t i = 0; i <= 26; ++i) {
    EXPECT_EQ(loaded(i), Variant(CStr(saved(i + 1)))) << "load element " << i;
  }
  EXPECT_TRUE(loaded(27).IsEmpty());

  // The full list puts claverep, opeseg, opearr before impmet, impinm.
  const int from_save[] = {0,  1,  2,  3,  4,  5,  6,  7,  10, 11, 12, 8,  9,  13,
                           14, 15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27};
  Variant with_key = Buffer(1, 7);
  for (const Variant& list : {declarado_.ObtenerDeclaradosOpe(7),
                              declarado_.ObtenerDeclaradosSinValoresEnCamposNuevos2014(7)}) {
    ASSERT_EQ(list.AsArray().UBound(1), 28);
    ASSERT_EQ(list.AsArray().UBound(2), 1);
    for (int32_t c = 0; c <= 27; ++c) {
      EXPECT_EQ(list(c, 1), Variant(CStr(with_key(from_save[c])))) << "list column " << c;
    }
  }
  const Variant brief = declarado_.ObtenerDeclarados(7);
  EXPECT_EQ(brief(0, 1), Variant("1"));
  EXPECT_EQ(brief(1, 1), Variant("B20456786"));
  EXPECT_EQ(brief(2, 1), Variant("Zubia D'Arrieta"));
  EXPECT_EQ(brief(3, 1), Variant("A"));
  EXPECT_EQ(brief(4, 1), Variant("100000"));

  EXPECT_TRUE(declarado_.ObtenerDeclarados(8).IsNull());
  EXPECT_TRUE(declarado_.ObtenerDeclaradosOpe(8).IsNull());
  EXPECT_TRUE(declarado_.ObtenerDeclaradosSinValoresEnCamposNuevos2014(8).IsNull());
  EXPECT_TRUE(declarado_.CargarDeclarado(2).IsNull());
}

TEST_F(DeclaradoTest, AmountsSurviveInsertUpdateAndLoad) {
  // Element 7 importe and 9 impinm stand bare in the SQL; 13 impopeT1 and
  // 27 impanudevopecaj stand quoted.
  for (double amount : {-0.5, 99999999999.0}) {
    for (int32_t key : {0, 1}) {
      Variant b = Buffer(key, 7);
      for (int32_t i : {7, 9, 13, 27}) b(i) = amount;
      const Variant loaded = declarado_.CargarDeclarado(declarado_.GuardarDeclarado(b));
      for (int32_t i : {7, 9, 13, 27}) {
        EXPECT_EQ(loaded(i - 1), Variant(NumberText(amount)))
            << amount << (key == 0 ? " inserted" : " updated") << ", buffer element " << i;
      }
    }
  }
}

TEST_F(DeclaradoTest, TextsAreStoredByTheirRules) {
  Variant b = Buffer(0, 7);
  for (int32_t i : {3, 4, 5, 6, 10, 11, 12, 22, 23, 24, 25, 26}) b(i) = "";
  declarado_.GuardarDeclarado(b);
  EXPECT_EQ(Stored("paiso, nifo, razon, claveopo, claverep, opeseg, opearr, siglaspaisintra, "
                   "nifpaisintra, opeivacaja, opeinvsujpas, operegposadu"),
            (Rows{{"", " ", " ", " ", " ", " ", " ", " ", " ", " ", " ", " "}}))
      << "empty texts are one blank, except the country";

  declarado_.GuardarDeclarado(Buffer(0, 7));
  EXPECT_EQ(Stored("razon")[1][0], Variant("Zubia D´Arrieta"));
  EXPECT_EQ(declarado_.ObtenerDeclarados(7)(2, 2), Variant("Zubia D'Arrieta"));
  EXPECT_EQ(declarado_.CargarDeclarado(2)(4), Variant("Zubia D'Arrieta"));

  // Only the name is protected: an apostrophe elsewhere is refused whole.
  for (int32_t i : {3, 4, 6, 23}) {
    Variant quoted = Buffer(0, 7);
    quoted(i) = "D'";
    EXPECT_RAISES(declarado_.GuardarDeclarado(quoted), errc::kSyntaxError) << "element " << i;
    quoted(0) = 1;
    quoted(i) = "1', importe=0 WHERE 1=1 --";
    EXPECT_RAISES(declarado_.GuardarDeclarado(quoted), errc::kSyntaxError) << "element " << i;
  }
  EXPECT_EQ(Stored("importe"), (Rows{{100000.0}, {100000.0}}));
}

TEST_F(DeclaradoTest, BadBuffersStoreNothing) {
  Variant not_amount = Buffer(0, 7);
  not_amount(7) = "mil";
  EXPECT_RAISES(declarado_.GuardarDeclarado(not_amount), errc::kTypeMismatch);
  Variant null_name = Buffer(0, 7);
  null_name(5) = Variant::Null();
  EXPECT_RAISES(declarado_.GuardarDeclarado(null_name), errc::kInvalidUseOfNull);
  EXPECT_RAISES(declarado_.GuardarDeclarado(Variant(Array(0, 26))), errc::kSubscriptOutOfRange);
  EXPECT_RAISES(declarado_.GuardarDeclarado(Variant("buffer")), errc::kTypeMismatch);
  Variant long_key = Buffer(0, 7);
  long_key(6) = "AB";
  EXPECT_RAISES(declarado_.GuardarDeclarado(long_key), errc::kFieldTooSmall);
  EXPECT_TRUE(Stored("codope").empty());
}

TEST_F(DeclaradoTest, DeclaradosCoincidentesComparesIdentifierKeyAndFlags) {
  Variant b = Buffer(0, 7);
  b(10) = "";  // claverep stored as one blank
  declarado_.GuardarDeclarado(b);
  struct Case {
    const char* name;
    std::string decl, nif, key, arr, seg, rep;
    int32_t codope, year;
    std::string caja, sujpas, posadu;
    bool expected;
  };
  const Case cases[] = {
      {"same data, new row", "7", "B20456786", "A", "T", "S", "", 0, 2013, "X", "Y", "Z", true},
      {"letters in other case", "7", "b20456786", "a", "t", "s", "", 0, 2013, "x", "y", "z", true},
      {"the row itself", "7", "B20456786", "A", "T", "S", "", 1, 2013, "X", "Y", "Z", false},
      {"another declaration", "8", "B20456786", "A", "T", "S", "", 0, 2013, "X", "Y", "Z", false},
      {"another identifier", "7", "B20456787", "A", "T", "S", "", 0, 2013, "X", "Y", "Z", false},
      {"another key", "7", "B20456786", "B", "T", "S", "", 0, 2013, "X", "Y", "Z", false},
      {"another cash year", "7", "B20456786", "A", "T", "S", "", 0, 2012, "X", "Y", "Z", false},
      {"another customs flag", "7", "B20456786", "A", "T", "S", "", 0, 2013, "X", "Y", "", false},
      {"a blank is not empty", "7", "B20456786", "A", "T", "S", " R", 0, 2013, "X", "Y", "Z",
       false},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(declarado_.DeclaradosCoincidentes(c.decl, c.nif, c.key, c.arr, c.seg, c.rep,
                                                c.codope, c.year, c.caja, c.sujpas, c.posadu),
              c.expected)
        << c.name;
  }
  Variant other_amount = Buffer(1, 7);
  other_amount(10) = "";
  other_amount(7) = 5.0;
  declarado_.GuardarDeclarado(other_amount);
  EXPECT_TRUE(declarado_.DeclaradosCoincidentes("7", "B20456786", "A", "T", "S", "", 0, 2013,
                                                "X", "Y", "Z"))
      << "amounts take no part";
}

TEST_F(DeclaradoTest, SeImportanTodosLooksAtEveryDeclarationForNewColumns) {
  Variant plain = Buffer(0, 7);
  for (int32_t i : {22, 23, 24, 25, 26}) plain(i) = "";
  plain(27) = 0.0;
  declarado_.GuardarDeclarado(plain);
  EXPECT_TRUE(declarado_.SeImportanTodos(7));
  EXPECT_FALSE(declarado_.SeImportanTodos(8)) << "blank 2014 columns and no rows of 8";
  EXPECT_FALSE(declarado_.SeImportanTodos(32767));
  EXPECT_FALSE(declarado_.SeImportanTodos(-32768));
  const auto overflow = test::ErrorOf([&] { declarado_.SeImportanTodos(32768); });
  ASSERT_TRUE(overflow);
  EXPECT_EQ(overflow->Number(), errc::kOverflow);
  EXPECT_EQ(overflow->Description().find("clDeclarados"), std::string::npos);

  struct Case {
    const char* name;
    int32_t element;
    Variant value;
    bool expected;
  };
  const Case cases[] = {{"cash-basis amount", 27, 1.0, true},
                        {"negative cash-basis amount", 27, -1.0, false},
                        {"country prefix", 22, "FR", true},
                        {"intra-community number alone", 23, "123", false},
                        {"cash-basis flag", 24, "X", true},
                        {"reversal flag", 25, "X", true},
                        {"customs flag", 26, "X", true}};
  int32_t key = 0;
  for (const Case& c : cases) {
    Variant other = plain;
    other(0) = key;
    other(1) = 9;
    other(c.element) = c.value;
    key = declarado_.GuardarDeclarado(other);
    EXPECT_EQ(declarado_.SeImportanTodos(8), c.expected) << c.name << " in declaration 9";
  }
}

TEST_F(DeclaradoTest, ErrorsCarryTheMethodsPrefix) {
  cDeclarado lost;
  lost.mdbmod((dir_ / "gone.db").string());
  const std::string missing = "Could not find";
  test::ExpectPrefixes({
      {"cdeclarado.ObtenerDeclarados " + missing, [&] { lost.ObtenerDeclarados(1); }},
      {"cdeclarado.ObtenerDeclaradosOpe " + missing, [&] { lost.ObtenerDeclaradosOpe(1); }},
      {"cdeclarado.ObtenerDeclaradosSinValoresEnCamposNuevos2014 " + missing,
       [&] { lost.ObtenerDeclaradosSinValoresEnCamposNuevos2014(1); }},
      {"cdeclarado.CargarDeclarado " + missing, [&] { lost.CargarDeclarado(1); }},
      {"clDeclarados.EliminarDeclarado " + missing, [&] { lost.EliminarDeclarado(1); }},
      {"clDeclarados.SeImportanTodos " + missing, [&] { lost.SeImportanTodos(1); }},
      {"cdeclarado.DeclaradosCoincidentes " + missing,
       [&] { lost.DeclaradosCoincidentes("1", "", "", "", "", "", 0, 0, "", "", ""); }},
      {missing, [&] { lost.GuardarDeclarado(Buffer(0, 1)); }},
      {"cdeclarado.DeclaradosCoincidentes Type mismatch",
       [&] { declarado_.DeclaradosCoincidentes("siete", "", "", "", "", "", 0, 0, "", "", ""); }},
  });
  // A failing list carries the public, then the gateway's prefix.
  test::Exec(mod_, "DROP TABLE tOperadores");
  test::ExpectPrefixes({
      {"cdeclarado.ObtenerDeclarados cTDeclarados.ObtenerDeclarados ",
       [&] { declarado_.ObtenerDeclarados(1); }},
      {"cdeclarado.ObtenerDeclaradosOpe cTDeclarados.ObtenerDeclaradosOpe ",
       [&] { declarado_.ObtenerDeclaradosOpe(1); }},
      {"cdeclarado.CargarDeclarado cTDeclarados.CargarDeclarado ",
       [&] { declarado_.CargarDeclarado(1); }},
  });
}

class TotalesTest : public DeclaradoTest {
 protected:
  // Declarants 1 and 2 with 2013 declarations 1 and 2; declarant 3 with
  // 2013 declaration 3 and declarant 1 with 2012 declaration 4.
  TotalesTest() {
    for (int i = 0; i < 3; ++i) test::Exec(mod_, "INSERT INTO TDeclarante (dni_cifd) VALUES ('x')");
    test::Exec(mod_, "INSERT INTO TDeclaraciones (coddecr, ejercicio, moneda) VALUES "
                     "(1, 2013, 'E'), (2, 2013, 'E'), (3, 2013, 'E'), (1, 2012, 'E')");
    const std::pair<int32_t, std::pair<const char*, double>> rows[] = {
        {1, {"A", 100}}, {1, {"A", -30}}, {1, {"B", 5}}, {2, {"A", 1000}},
        {3, {"A", 7}},   {4, {"A", 9}}};
    for (const auto& [decl, row] : rows) {
      Variant b = Buffer(0, decl);
      b(6) = row.first;
      b(7) = row.second;
      declarado_.GuardarDeclarado(b);
    }
    OpenDataDatabase(mod_);
  }
  ~TotalesTest() override { Conexion().Cerrar(); }

};

TEST_F(TotalesTest, TotalsPerKeyOfOneDeclaration) {
  cTDeclarados gateway;
  gateway.Let(cTDeclarados::coddeclar, 1);
  const Variant totals = gateway.ObtenerTotalOperaciones();
  ASSERT_EQ(totals.AsArray().UBound(2), 2);
  EXPECT_EQ(totals(0, 1), Variant("A"));
  EXPECT_EQ(totals(1, 1), Variant("70"));
  EXPECT_EQ(totals(2, 1), Variant("2"));
  EXPECT_EQ(totals(0, 2), Variant("B"));
  gateway.Let(cTDeclarados::coddeclar, 9);
  EXPECT_TRUE(gateway.ObtenerTotalOperaciones().IsNull());
}

TEST_F(TotalesTest, TotalsOverSeveralDeclarantsOfOneYear) {
  cTDeclarados gateway;
  const Variant totals = gateway.ObtenerTotalDeclaradosVarDtes(test::Buffer({1, "2"}), 2013);
  ASSERT_EQ(totals.AsArray().UBound(2), 2);
  EXPECT_EQ(totals(0, 1), Variant("A"));
  EXPECT_EQ(totals(1, 1), Variant("1070")) << "declarant 3 and year 2012 left out";
  EXPECT_EQ(totals(2, 1), Variant("3"));
  EXPECT_TRUE(gateway.ObtenerTotalDeclaradosVarDtes(test::Buffer({3}), 2012).IsNull());

  EXPECT_RAISES(gateway.ObtenerTotalDeclaradosVarDtes(Variant(Array()), 2013),
                errc::kInvalidProcedureCall);
  EXPECT_RAISES(gateway.ObtenerTotalDeclaradosVarDtes(Variant(1), 2013), errc::kTypeMismatch);
  EXPECT_RAISES(gateway.ObtenerTotalDeclaradosVarDtes(test::Buffer({"1) OR (1=1"}), 2013),
                errc::kTypeMismatch);
}

}  // namespace
}  // namespace zerbal
