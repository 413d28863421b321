#include "zerbal/exportacion.h"

#include <fstream>

#include "fileformat/fixtures.h"
#include "testutil.h"
#include "zerbal/arrendamiento.h"
#include "zerbal/conexion_dao.h"
#include "zerbal/declaraciones.h"
#include "zerbal/declarado.h"
#include "zerbal/declarante.h"
#include "zerbal/timpexp.h"

namespace zerbal {
namespace {

class ExportacionTest : public test::DatabaseTest {
 protected:
  ExportacionTest() {
    for (PathProperties* c : std::initializer_list<PathProperties*>{
             &declarante_, &declaraciones_, &declarado_, &arrendamiento_}) {
      c->mdbmod(mod_);
    }
    exportacion_.mdbmod(mod_);
  }
  int32_t Declarant(const std::string& nif, const std::string& name) {
    return declarante_.GuardarDeclarante(test::Buffer(
        {0, nif, name, "CL", "Easo", 21, "", "", "2", "A", 20, "20600", "Eibar", 943, "", "", 0, ""}));
  }
  int32_t Operation(int32_t declaration, const std::string& key, double amount) {
    return declarado_.GuardarDeclarado(test::Buffer(
        {0, declaration, 20, "", "54362315K", "Ane", key, amount, 0.0, 0.0, "", "", "", 0.0,
         0.0, 0.0, amount, 0.0, 0.0, 0.0, 0.0, 0, "", "", "", "", "", 0.0}));
  }
  int32_t Rental(int32_t declaration) {
    return arrendamiento_.GuardarArrendamiento(test::Buffer(
        {0, declaration, 20, "", "X2482300W", "Jan", 500.0, "Eibar", "R", "CL", "Easo", 3, "",
         "", "", 20}));
  }
  cDeclarante declarante_;
  cDeclaraciones declaraciones_;
  cDeclarado declarado_;
  cArrendamiento arrendamiento_;
  cExportacion exportacion_;
};

TEST_F(ExportacionTest, RecordsOfOneDeclarant) {
  const int32_t dte = Declarant("12345678Z", "Ibáñez");
  const int32_t declaration = declaraciones_.GuardarDeclaracion(2014, "E", dte);
  const int32_t last = Operation(declaration, "B", 300);
  Operation(declaration, "A", 100);  // a higher codope than `last`... listed after it
  Operation(declaration, "A", -50);
  exportacion_.Ejercicio(2014);
  exportacion_.Moneda("E");
  const Variant codes = test::Buffer({dte});
  const std::string reg1 = exportacion_.ExportarReg1(codes, 0);
  EXPECT_EQ(Len(reg1), 500);
  EXPECT_EQ(exportacion_.Declaracion(), std::to_string(declaration));
  EXPECT_EQ(Mid(reg1, 60, 25), "000000002 000000000000050") << "key A: two rows, sum 50";

  const Variant ops = exportacion_.ExportarReg2(codes, 0);
  ASSERT_EQ(ops.AsArray().UBound(), 3);
  EXPECT_TRUE(ops(0).IsEmpty());
  EXPECT_EQ(ops(1).AsString()[19], 'B') << "in codope order: row " << last << " first";
  EXPECT_EQ(ops(3).AsString().substr(75, 16), "N000000000000050");
  EXPECT_TRUE(exportacion_.ExportarReg3(codes, 0).IsEmpty());

  Rental(declaration);
  const Variant rentals = exportacion_.ExportarReg3(codes, 0);
  EXPECT_EQ(rentals(1).Kind(), VarKind::kString);
  EXPECT_EQ(rentals(1).AsString().substr(0, 19), "3347201420" + std::string("12345678Z"));
}

TEST_F(ExportacionTest, RecordZeroTakesItsLayoutFromTheYearProperty) {
  const Variant presenter = test::Buffer({1, "B20456786", "Pres", "CL", "Easo", 21, "", "",
                                          "", "", 20, "5", "Eibar", 943, "700100", "", 0, ""});
  exportacion_.Ejercicio(2009);
  const std::string reg0 = exportacion_.ExportarReg0(presenter, 3, 40, 2014);
  EXPECT_EQ(Len(reg0), 180);
  EXPECT_EQ(reg0.substr(0, 10), "0347201420");
  EXPECT_EQ(reg0.substr(113, 14), "00003000000040");
}

TEST_F(ExportacionTest, RecordOneFailsQuietly) {
  cExportacion lost;
  lost.mdbmod((dir_ / "gone.db").string());
  lost.Ejercicio(2014);
  EXPECT_EQ(lost.ExportarReg1(test::Buffer({1}), 0), "");
  EXPECT_EQ(exportacion_.ExportarReg1(test::Buffer({1}), 0), "") << "a declarant that does not exist";
  EXPECT_EQ(exportacion_.ExportarReg1(test::Buffer({1}), 4), "") << "an index outside the list";
  EXPECT_RAISES(exportacion_.ExportarReg2(test::Buffer({1}), 0), errc::kNoCurrentRecord)
      << "records 2 and 3 raise";
}

TEST_F(ExportacionTest, TheDeclarantsFileReplacesWhatWasThere) {
  const int32_t a = Declarant("12345678Z", "Ibáñez Ñ");
  const int32_t b = Declarant("B64717838", "Zubia D'Arrieta");
  const auto path = dir_ / "dtes.txt";
  std::ofstream(path) << "old content that is longer than what replaces it\n\n\n\n";
  ASSERT_TRUE(exportacion_.ExportarDtes(path.string(), test::Buffer({a, b})));
  const std::string text = test::Slurp(path);
  ASSERT_EQ(text.size(), 2u * 164);
  EXPECT_EQ(text.substr(162, 2), "\r\n");
  EXPECT_EQ(text.substr(9, 9), "Ib\xE1\xF1""ez \xD1 ") << "one Windows-1252 byte per character";
  EXPECT_EQ(text.substr(164 + 9, 15), "Zubia D\xB4""Arrieta")
      << "a loaded declarant keeps the accent that stands for the apostrophe";

  EXPECT_FALSE(exportacion_.ExportarDtes(path.string(), test::Buffer({a, 99})));
  EXPECT_EQ(test::Slurp(path).size(), 164u) << "the lines before the failure stay";
}

TEST_F(ExportacionTest, CountsAndDeclarantsOfAYear) {
  const int32_t a = Declarant("B64717838", "Bee");
  const int32_t b = Declarant("12345678Z", "Ay");
  const int32_t c = Declarant("54362315K", "Sea");
  const int32_t da = declaraciones_.GuardarDeclaracion(2014, "E", a);
  const int32_t db = declaraciones_.GuardarDeclaracion(2014, "E", b);
  declaraciones_.GuardarDeclaracion(2014, "P", c);
  declaraciones_.GuardarDeclaracion(2013, "E", c);
  Operation(da, "A", 1);  // codope 1
  Operation(db, "A", 1);  // codope 2
  Rental(da);             // codarr 1: the same number as an operation, counted once
  Rental(db);
  Rental(db);             // codarr 3
  EXPECT_EQ(exportacion_.TotalDeclarados(2014, "E", std::to_string(a) + "," + std::to_string(b)),
            3);
  EXPECT_EQ(exportacion_.TotalDeclarados(2013, "E", std::to_string(a)), 0);
  const auto error = test::ErrorOf([&] { exportacion_.TotalDeclarados(2014, "E", "1)"); });
  ASSERT_TRUE(error);
  EXPECT_EQ(error->Description().rfind("cExportacion.TotalDeclarados cTImpExp.TotalDeclarados ", 0),
            0u);

  Conexion().mdb(bd347mod);
  Conexion().InicializaBD(mod_);
  EXPECT_EQ(cTImpExp().ObtenerDeclarantes(2014, "E").AsArray().UBound(2), 2);
  EXPECT_TRUE(cTImpExp().ObtenerDeclarantes(2012, "E").IsNull());
  EXPECT_EQ(cTImpExp().ObtenerDeclarantes(2014, "P").AsArray().UBound(2), 1);
}

}  // namespace
}  // namespace zerbal
