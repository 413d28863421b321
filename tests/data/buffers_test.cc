#include "data/buffers.h"

#include "testutil.h"
#include "zerbal/conexion_dao.h"

namespace zerbal {
namespace {

class BuffersTest : public test::DatabaseTest {
 protected:
  void SetUp() override {
    Conexion().mdb(bd347mod);
    Conexion().InicializaBD(mod_);
  }
  Variant Load(const std::string& sql, int16_t mode) {
    Recordset rs = Conexion().openRecordset(sql);
    Variant buffer = General::CargarArray(rs, mode);
    EXPECT_TRUE(rs.Eof()) << "left past the last row";
    return buffer;
  }
  void AddDeclarant(const std::string& nif, const std::string& name) {
    Conexion().execute("INSERT INTO TDeclarante (dni_cifd, nombred) VALUES ('" + nif + "', " +
                       name + ")");
  }
};

TEST_F(BuffersTest, TableModeLeavesRowZeroAndTheLastColumnEmpty) {
  for (int16_t mode : {0, 1, 2, 7}) {
    EXPECT_TRUE(Load("SELECT dni_cifd FROM TDeclarante", mode).IsNull()) << "no rows, mode " << mode;
  }
  AddDeclarant("A1", "'uno'");
  AddDeclarant("B2", "NULL");
  AddDeclarant("C3", "'D´Elosegi'");
  const Variant table = Load("SELECT dni_cifd, nombred FROM TDeclarante ORDER BY coddec", 2);
  const Array& a = table.AsArray();
  ASSERT_EQ(a.Dimensions(), 2);
  EXPECT_EQ(a.UBound(1), 2);
  EXPECT_EQ(a.UBound(2), 3);
  const Variant expected[3][2] = {{"A1", "uno"}, {"B2", ""}, {"C3", "D'Elosegi"}};
  for (int32_t k = 1; k <= 3; ++k) {
    for (int32_t c = 0; c <= 1; ++c) EXPECT_EQ(a(c, k), expected[k - 1][c]) << c << "," << k;
    EXPECT_TRUE(a(2, k).IsEmpty());
  }
  for (int32_t c = 0; c <= 2; ++c) EXPECT_TRUE(a(c, 0).IsEmpty());
}

TEST_F(BuffersTest, RecordAndColumnModes) {
  Conexion().execute(
      "INSERT INTO tOperadores (coddeclar, razon, importe, ejerimpmet) VALUES (7, 'X''s', 12.5, "
      "NULL)");
  const Variant record = Load("SELECT coddeclar, razon, importe, ejerimpmet FROM tOperadores", 0);
  ASSERT_EQ(record.AsArray().UBound(), 4);
  EXPECT_EQ(record(0), Variant("7"));
  EXPECT_EQ(record(1), Variant("X's")) << "an apostrophe stored as such stays one";
  EXPECT_EQ(record(2), Variant("12.5"));
  EXPECT_EQ(record(3), Variant(""));
  EXPECT_TRUE(record(4).IsEmpty());

  AddDeclarant("A1", "'a'");
  AddDeclarant("B2", "'b'");
  const Variant column = Load("SELECT dni_cifd, nombred FROM TDeclarante ORDER BY coddec", 1);
  EXPECT_EQ(DebugString(column), "(0 to 1) {\"A1\", \"B2\"}");
  EXPECT_RAISES(Load("SELECT dni_cifd, nombred FROM TDeclarante", 0), 9)
      << "a second row runs past the one-record buffer";
}

TEST_F(BuffersTest, PositionsAreSixteenBitNumbers) {
  Conexion().execute("DELETE FROM tGeneral");
  Conexion().execute("INSERT INTO tGeneral (ActOnline, Idioma) VALUES (1, 'C')");
  for (int doubling = 0; doubling < 15; ++doubling) {
    Conexion().execute("INSERT INTO tGeneral SELECT ActOnline, Idioma FROM tGeneral");
  }
  EXPECT_RAISES(Load("SELECT Idioma FROM tGeneral", 2), 6) << "32,768 rows";
  EXPECT_RAISES(Load("SELECT Idioma FROM tGeneral", 1), 6);
  test::Exec(mod_, "DELETE FROM tGeneral WHERE rowid = (SELECT MAX(rowid) FROM tGeneral)");
  EXPECT_EQ(Load("SELECT Idioma FROM tGeneral", 2).AsArray().UBound(2), 32767) << "32,767 rows";
  EXPECT_EQ(Load("SELECT Idioma FROM tGeneral", 1).AsArray().UBound(), 32766);
}

TEST(QuotesTest, ApostrophesTurnIntoAcuteAccentsAndBack) {
  EXPECT_EQ(General::SustituirComilla("D'Elosegi's"), "D´Elosegi´s");
  EXPECT_EQ(General::RestaurarComilla(Variant("D´Elosegi´s")), "D'Elosegi's");
  EXPECT_EQ(General::RestaurarComilla(Variant::Null()), "");
  EXPECT_EQ(General::RestaurarComilla(Variant(1234.0)), "1234");
  EXPECT_EQ(General::RestaurarComilla(Variant(-0.5)), "-0.5");
}

}  // namespace
}  // namespace zerbal
