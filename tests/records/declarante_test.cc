#include "zerbal/declarante.h"

#include "prefijo.h"
#include "zerbal/declaraciones.h"

namespace zerbal {
namespace {

using Rows = std::vector<std::vector<Variant>>;

class DeclaranteTest : public test::DatabaseTest {
 protected:
  DeclaranteTest() {
    declarante_.mdbmod(mod_);
    declaraciones_.mdbmod(mod_);
  }
  int32_t Add(const std::string& nif, const std::string& name = "Nombre") {
    return declarante_.GuardarDeclarante(test::PersonBuffer(0, nif, name));
  }
  int64_t Count(const std::string& table, const std::string& where) {
    return test::Rows(mod_, "SELECT count(*) FROM " + table + " WHERE " + where)[0][0].AsLong();
  }
  cDeclarante declarante_;
  cDeclaraciones declaraciones_;
};

TEST_F(DeclaranteTest, SavedLoadedAndUpdatedWithTheStorageRules) {
  EXPECT_EQ(Add("11111111H"), 1);
  EXPECT_EQ(Add("22222222J"), 2);
  declarante_.EliminarDeclarante(2);
  const int32_t code =
      declarante_.GuardarDeclarante(test::PersonBuffer(0, "12345678Z", "Zubia D'Arrieta"));
  EXPECT_EQ(code, 3) << "a new code above every code the table has held";

  Variant loaded;
  declarante_.CargarDeclarante(code, loaded);
  const Variant expected[] = {3,  "12345678Z", "Zubia D´Arrieta", "CL", "Kale Nagusia", 12, "",
                              "B", "3", "izq", 20, "5", "Donostia", 943, "", "Ane", 0, "654321"};
  for (int32_t i = 0; i <= 17; ++i) EXPECT_EQ(loaded(i), expected[i]) << "index " << i;
  EXPECT_EQ(test::Rows(mod_, "SELECT letrad, telefonod, codpostald FROM TDeclarante WHERE coddec = 3"),
            (Rows{{" ", "", 5}}));

  Variant changed = loaded;
  changed(2) = "Otro";
  EXPECT_EQ(declarante_.GuardarDeclarante(changed), 3);
  EXPECT_EQ(test::Rows(mod_, "SELECT count(*), max(nombred) FROM TDeclarante"), (Rows{{2, "Otro"}}));

  Variant none;
  declarante_.CargarDeclarante(0, none);
  EXPECT_EQ(none(0), Variant(0));
  EXPECT_EQ(none(11), Variant("0"));
  EXPECT_RAISES(declarante_.CargarDeclarante(99, none), errc::kNoCurrentRecord);
}

TEST_F(DeclaranteTest, ListsAndSearchByIdentifier) {
  EXPECT_TRUE(declarante_.ObtenerDeclarantes().IsNull());
  for (const char* nif : {"60000000F", "50000000R", "40000000V", "30000000Q", "20000000M",
                          "10000000Y"}) {
    Add(nif, std::string("D'") + nif);
  }
  const Variant latest = declarante_.ObtenerUltimosDeclarantes();
  EXPECT_EQ(latest.AsArray().UBound(2), 4);
  for (int32_t k = 1; k <= 4; ++k) EXPECT_EQ(latest(0, k), Variant(std::to_string(7 - k)));
  const Variant all = declarante_.ObtenerDeclarantes();
  EXPECT_EQ(all.AsArray().UBound(2), 6);
  EXPECT_EQ(all(1, 1), Variant("10000000Y")) << "ordered by identifier";
  EXPECT_EQ(all(2, 1), Variant("D'10000000Y")) << "the apostrophe comes back in lists";

  EXPECT_EQ(declarante_.NifRepetido("30000000"), 4) << "the first eight characters find it";
  EXPECT_EQ(declarante_.NifRepetido("30000000q"), 4);
  EXPECT_EQ(declarante_.NifRepetido("3#######Q"), 4) << "wildcards act as wildcards";
  EXPECT_EQ(declarante_.NifRepetido("99"), 0);
  EXPECT_EQ(declarante_.NifRepetido(""), 0);
}

TEST_F(DeclaranteTest, DeletingWithDeclarationsTouchesOnlyItsOwnRows) {
  const int32_t gone = Add("11111111H");
  const int32_t kept = Add("22222222J");
  for (int32_t owner : {gone, kept}) {
    for (int32_t year : {2013, 2014}) {
      const int32_t d = declaraciones_.GuardarDeclaracion(year, "E", owner);
      test::Exec(mod_, "INSERT INTO tOperadores (coddeclar, importe) VALUES (" +
                           std::to_string(d) + ", 1)");
      test::Exec(mod_, "INSERT INTO tArrendamientos (coddeclar, importe) VALUES (" +
                           std::to_string(d) + ", 1)");
    }
  }
  declarante_.EliminarDeclarante(gone, true);
  EXPECT_EQ(Count("TDeclarante", "1=1"), 1);
  EXPECT_EQ(Count("TDeclaraciones", "coddecr = " + std::to_string(gone)), 0);
  EXPECT_EQ(Count("TDeclaraciones", "coddecr = " + std::to_string(kept)), 2);
  EXPECT_EQ(Count("tOperadores", "1=1"), 2);
  EXPECT_EQ(Count("tArrendamientos", "1=1"), 2);

  declarante_.EliminarDeclarante(kept);
  EXPECT_EQ(Count("TDeclarante", "1=1"), 0);
  const Variant orphans = declaraciones_.ObtenerDeclaraciones(kept);
  ASSERT_FALSE(orphans.IsNull()) << "declarations of a declarant deleted alone stay listed";
  EXPECT_EQ(orphans(3, 1), Variant(int16_t{1}));
  EXPECT_EQ(orphans(4, 2), Variant(int16_t{1}));
}

TEST_F(DeclaranteTest, ListErrorsCarryBothPrefixes) {
  test::Exec(mod_, "DROP TABLE TDeclarante");
  test::ExpectPrefixes({
      {"cDeclarante.ObtenerDeclarantes cTDeclarante.ObtenerDeclarantes Syntax error",
       [&] { declarante_.ObtenerDeclarantes(); }},
      {"cDeclarante.ObtenerUltimosDeclarantes cTDeclarante.ObtenerUltimosDeclarantes ",
       [&] { declarante_.ObtenerUltimosDeclarantes(); }},
      {"cDeclarante.EliminarDeclarante ", [&] { declarante_.EliminarDeclarante(1); }},
  });
}

}  // namespace
}  // namespace zerbal
