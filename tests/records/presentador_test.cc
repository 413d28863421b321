#include "zerbal/presentador.h"

#include "prefijo.h"

namespace zerbal {
namespace {

class PresentadorTest : public test::DatabaseTest {
 protected:
  PresentadorTest() {
    presenter_.mdbmod(mod_);
    presenter_.mdblec(lec_);
  }

  static Variant Buffer(int32_t code, const std::string& nif) {
    return test::PersonBuffer(code, nif, "Aholkularitza D'Elosegi S.L.");
  }
  std::vector<std::vector<Variant>> Stored(const std::string& columns) {
    return test::Rows(mod_, "SELECT " + columns + " FROM TPresentador ORDER BY codpres");
  }

  cPresentador presenter_;
};

TEST_F(PresentadorTest, WithNoPresenterTheBufferHoldsCodeZero) {
  Variant buffer = "replaced";
  presenter_.CargarPresentador(buffer);
  const Array& a = buffer.AsArray();
  ASSERT_EQ(a.UBound(), 17);
  for (int32_t i = 0; i <= 17; ++i) {
    const bool number = i == 0 || i == 5 || i == 10 || i == 13 || i == 16;
    EXPECT_EQ(a(i), number ? Variant(0) : Variant(i == 11 ? "0" : "")) << "index " << i;
  }
}

TEST_F(PresentadorTest, SavedAndLoadedBackWithTheStorageRules) {
  const int32_t code = presenter_.GuardarPresentador(Buffer(0, "B20456786"));
  EXPECT_EQ(code, 1);
  Variant loaded;
  presenter_.CargarPresentador(loaded);
  const Variant expected[] = {1, "B20456786", "Aholkularitza D´Elosegi S.L.", "CL",
                              "Kale Nagusia", 12, "", "B", "3", "izq", 20, "5", "Donostia",
                              943, "", "Ane", 0, "654321"};
  for (int32_t i = 0; i <= 17; ++i) EXPECT_EQ(loaded(i), expected[i]) << "index " << i;
  EXPECT_EQ(Stored("letra, telefono, codpostal, nombre"),
            (std::vector<std::vector<Variant>>{{" ", "", 5, "Aholkularitza D´Elosegi S.L."}}))
      << "an empty letter is one blank, an empty telephone stays empty, 20005 is kept as 5";

  Variant changed = Buffer(code, "B20456786");
  changed(2) = "Nueva";
  changed(11) = 1;
  EXPECT_EQ(presenter_.GuardarPresentador(changed), code);
  EXPECT_EQ(Stored("codpres, nombre, codpostal"),
            (std::vector<std::vector<Variant>>{{1, "Nueva", 1}}));

  EXPECT_EQ(presenter_.GuardarPresentador(Buffer(0, "A20000006")), 2) << "code 0 always inserts";
  presenter_.CargarPresentador(loaded);
  EXPECT_EQ(loaded(0), Variant(1)) << "loading shows the first row";
}

TEST_F(PresentadorTest, NifRepetidoMatchesTheWholeIdentifierOnly) {
  presenter_.GuardarPresentador(Buffer(0, "B20456786"));
  EXPECT_EQ(presenter_.NifRepetido("B20456786"), 1);
  EXPECT_EQ(presenter_.NifRepetido("b20456786"), 1);
  EXPECT_EQ(presenter_.NifRepetido("B2045678"), 0);
  EXPECT_EQ(presenter_.NifRepetido("B2045678*"), 0);
  EXPECT_EQ(presenter_.NifRepetido(""), 0);
}

TEST_F(PresentadorTest, EliminarPresentadorDeletesAndPrefixesItsErrors) {
  const int32_t code = presenter_.GuardarPresentador(Buffer(0, "B20456786"));
  presenter_.EliminarPresentador(code);
  EXPECT_TRUE(Stored("codpres").empty());

  cPresentador lost;
  lost.mdbmod((dir_ / "gone.db").string());
  test::ExpectPrefixes({
      {"cPresentador.EliminarPresentador Could not find", [&] { lost.EliminarPresentador(1); }},
      {"Could not find", [&] { lost.NifRepetido("x"); }},  // no handler: raised unchanged
  });
}

TEST_F(PresentadorTest, BadBuffersAndValuesChangeNothing) {
  Variant no_postal_code = Buffer(0, "B20456786");
  no_postal_code(11) = "";
  EXPECT_RAISES(presenter_.GuardarPresentador(no_postal_code), 13);
  EXPECT_RAISES(presenter_.GuardarPresentador(Variant(Array(0, 5))), 9);
  EXPECT_RAISES(presenter_.GuardarPresentador(Variant("not a buffer")), 13);
  Variant long_name = Buffer(0, "B20456786");
  long_name(2) = std::string(101, 'x');
  EXPECT_RAISES(presenter_.GuardarPresentador(long_name), 3163);
  Variant quoted_nif = Buffer(0, "B20'456786");
  EXPECT_RAISES(presenter_.GuardarPresentador(quoted_nif), 3075)
      << "the identifier is not protected, so its apostrophe breaks the statement";
  Variant stacked = Buffer(0, "B20456786");
  stacked(17) = "1'); DELETE FROM TPresentador; --";
  EXPECT_RAISES(presenter_.GuardarPresentador(stacked), 3142);
  EXPECT_TRUE(Stored("codpres").empty());
}

}  // namespace
}  // namespace zerbal
