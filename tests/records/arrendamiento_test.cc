#include "zerbal/arrendamiento.h"

#include "base/convert.h"
#include "prefijo.h"

namespace zerbal {
namespace {

using Rows = std::vector<std::vector<Variant>>;

// A save buffer whose every element differs, so that a swapped column shows.
Variant Buffer(int32_t codarr, int32_t declaracion, const std::string& razon) {
  return test::Buffer({codarr, declaracion, 48, "FR", "B20456786", razon, 250000.0, "Donostia",
                       "1234567AB1234C0001DE", "CL", "Kale Nagusia", 12, "B", "3", "izq", 20});
}

class ArrendamientoTest : public test::DatabaseTest {
 protected:
  ArrendamientoTest() { arrendamiento_.mdbmod(mod_); }

  Rows Stored(const std::string& columns) {
    return test::Rows(mod_, "SELECT " + columns + " FROM tArrendamientos ORDER BY codarr");
  }

  cArrendamiento arrendamiento_;
};

TEST_F(ArrendamientoTest, BothSavesInsertAndUpdateAlike) {
  using Save = int32_t (cArrendamiento::*)(const Variant&);
  for (Save save : {&cArrendamiento::GuardarArrendamiento,
                    &cArrendamiento::GuardarArrendamiento_2007}) {
    test::Exec(mod_, "DELETE FROM tArrendamientos");
    const int32_t first = (arrendamiento_.*save)(Buffer(0, 7, "Ane"));
    EXPECT_EQ((arrendamiento_.*save)(Buffer(0, 7, "Bea")), first + 1);
    Variant changed = Buffer(first, 8, "Carmen");
    changed(2) = 1;  // prova
    changed(15) = 99;  // provi
    EXPECT_EQ((arrendamiento_.*save)(changed), first);
    EXPECT_EQ((arrendamiento_.*save)(Buffer(-1, 9, "Dora")), -1);
    EXPECT_EQ(Stored("coddeclar, razon, prova, provi"),
              (Rows{{8, "Carmen", 1, 99}, {7, "Bea", 48, 20}}));
  }
  arrendamiento_.EliminarArrendamiento(Stored("codarr")[0][0].AsLong());
  EXPECT_EQ(Stored("razon"), (Rows{{"Bea"}}));
}

TEST_F(ArrendamientoTest, LoadAndListsGiveTheirOwnColumnOrders) {
  arrendamiento_.GuardarArrendamiento(Buffer(0, 7, "Zubia D'Arrieta"));
  arrendamiento_.GuardarArrendamiento(Buffer(0, 7, "Ane"));
  const Variant saved = Buffer(1, 7, "Zubia D'Arrieta");

  // Load: the save order without codarr, provi moved to 1 and prova last.
  const int load_from_save[] = {1, 15, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 2};
  const Variant loaded = arrendamiento_.CargarArrendamiento(1);
  ASSERT_EQ(loaded.AsArray().UBound(), 15);
  for (int32_t i = 0; i <= 14; ++i) {
    EXPECT_EQ(loaded(i), Variant(CStr(saved(load_from_save[i])))) << "load element " << i;
  }
  EXPECT_TRUE(loaded(15).IsEmpty());

  // Every column but prova, by name: "Ane" comes first.
  const int all_from_save[] = {0, 1, 15, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14};
  const Variant all = arrendamiento_.ObtenerTodosLosArr(7);
  ASSERT_EQ(all.AsArray().UBound(1), 15);
  EXPECT_EQ(all(5, 1), Variant("Ane"));
  for (int32_t c = 0; c <= 14; ++c) {
    EXPECT_EQ(all(c, 2), Variant(CStr(saved(all_from_save[c])))) << "list column " << c;
  }

  const Variant brief = arrendamiento_.ObtenerArrendamientos(7);
  const Variant first_row[] = {"1", "B20456786", "Zubia D'Arrieta", "Donostia", "250000"};
  for (int32_t c = 0; c <= 4; ++c) EXPECT_EQ(brief(c, 1), first_row[c]) << "column " << c;
  EXPECT_EQ(brief(0, 2), Variant("2")) << "by key";

  EXPECT_TRUE(arrendamiento_.ObtenerArrendamientos(8).IsNull());
  EXPECT_TRUE(arrendamiento_.ObtenerTodosLosArr(8).IsNull());
  EXPECT_TRUE(arrendamiento_.CargarArrendamiento(3).IsNull());
}

TEST_F(ArrendamientoTest, TextsAndAmountsAreStoredByTheirRules) {
  Variant empty = Buffer(0, 7, "");
  for (int32_t i : {3, 4, 7, 8, 9, 10, 12, 13, 14}) empty(i) = "";
  arrendamiento_.GuardarArrendamiento(empty);
  EXPECT_EQ(Stored("paiso, nifa, razon, municipioa, refcat, viaa, domicilioa, escaleraa, pisoa, "
                   "puertaa"),
            (Rows{{"", " ", " ", " ", " ", " ", " ", " ", " ", " "}}));

  Variant quoted = Buffer(0, 7, "'");
  for (int32_t i : {7, 8, 9, 10, 12, 13, 14}) quoted(i) = "'";
  arrendamiento_.GuardarArrendamiento(quoted);
  EXPECT_EQ(Stored("razon, municipioa, refcat, viaa, domicilioa, escaleraa, pisoa, puertaa")[1],
            std::vector<Variant>(8, Variant("´")));
  const Variant loaded = arrendamiento_.CargarArrendamiento(2);
  for (int32_t i : {4, 6, 7, 8, 9, 11, 12, 13}) EXPECT_EQ(loaded(i), Variant("'")) << i;

  for (int32_t i : {3, 4}) {
    Variant bad = Buffer(0, 7, "x");
    bad(i) = "O'";
    EXPECT_RAISES(arrendamiento_.GuardarArrendamiento(bad), errc::kSyntaxError) << i;
  }
  EXPECT_EQ(Stored("codarr").size(), 2u);

  for (double amount : {-1234.5, 99999999999.0}) {
    for (int32_t key : {0, 1}) {
      Variant b = Buffer(key, 7, "x");
      b(6) = amount;
      const int32_t code = arrendamiento_.GuardarArrendamiento(b);
      EXPECT_EQ(arrendamiento_.CargarArrendamiento(code)(5), Variant(NumberText(amount)))
          << amount << (key == 0 ? " inserted" : " updated");
    }
  }
}

TEST_F(ArrendamientoTest, ErrorsCarryTheMethodsPrefix) {
  cArrendamiento lost;
  lost.mdbmod((dir_ / "gone.db").string());
  test::ExpectPrefixes({
      {"cArrendamiento.ObtenerArrendamientos Could not find", [&] { lost.ObtenerArrendamientos(1); }},
      {"cArrendamiento.ObtenerTodosLosArr Could not find", [&] { lost.ObtenerTodosLosArr(1); }},
      {"cArrendamiento.CargarDeclarado Could not find", [&] { lost.CargarArrendamiento(1); }},
      {"clArrendamientos.EliminarArrendamiento Could not find",
       [&] { lost.EliminarArrendamiento(1); }},
      {"Could not find", [&] { lost.GuardarArrendamiento(Buffer(0, 1, "x")); }},
      {"Could not find", [&] { lost.GuardarArrendamiento_2007(Buffer(0, 1, "x")); }},
  });
  test::Exec(mod_, "DROP TABLE tArrendamientos");
  test::ExpectPrefixes({
      {"cArrendamiento.ObtenerArrendamientos cTArrendamientos.ObtenerArrendamientos ",
       [&] { arrendamiento_.ObtenerArrendamientos(1); }},
      {"cArrendamiento.ObtenerTodosLosArr cTArrendamientos.ObtenerTodosLosArr ",
       [&] { arrendamiento_.ObtenerTodosLosArr(1); }},
      {"cArrendamiento.CargarDeclarado cTArrendamientos.CargarArrendamiento ",
       [&] { arrendamiento_.CargarArrendamiento(1); }},
  });
}

}  // namespace
}  // namespace zerbal
