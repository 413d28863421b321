#include "zerbal/conexion_dao.h"

#include <thread>

#include "testutil.h"
#include "zerbal/platform.h"

namespace zerbal {
namespace {

class RecordingPointer : public BusyPointer {
 public:
  void BusyOn() override { calls += "on "; }
  void BusyOff() override { calls += "off "; }
  std::string calls;
};

class ConexionTest : public test::DatabaseTest {
 protected:
  void SetUp() override { SetBusyPointer(&pointer_); }
  void TearDown() override { SetBusyPointer(nullptr); }
  RecordingPointer pointer_;
};

TEST_F(ConexionTest, TheSelectorDecidesWhichDatabaseEachCallAddresses) {
  Conexion().mdb(bd347mod);
  Conexion().InicializaBD(mod_);
  Conexion().mdb(bd347lec);
  Conexion().InicializaBD(lec_);
  EXPECT_EQ(Conexion().openRecordset("SELECT count(*) FROM TOperaciones").RecordCount(), 1);
  EXPECT_RAISES(Conexion().openRecordset("SELECT * FROM TDeclarante"), 3075);
  Conexion().mdb(bd347mod);
  Conexion().execute("INSERT INTO TDeclarante (dni_cifd) VALUES ('1')");
  Conexion().Cerrar();
  Conexion().mdb(5);  // any value but 0 is the lookup database, still open
  EXPECT_EQ(Conexion().openRecordset("SELECT codigo FROM TOperaciones").FieldCount(), 1);
}

TEST_F(ConexionTest, CerrarClosesEveryRecordsetThenTheSelectedDatabaseOnly) {
  Conexion().mdb(bd347lec);
  Conexion().InicializaBD(lec_);
  Recordset lookup = Conexion().openRecordset("SELECT * FROM TPaises");
  Conexion().mdb(bd347mod);
  Conexion().InicializaBD(mod_);
  Recordset a = Conexion().openRecordset("SELECT * FROM tGeneral");
  Recordset b = Conexion().openRecordset("SELECT * FROM tGeneral");
  Recordset c = Conexion().openRecordset("SELECT * FROM TDeclarante");
  Conexion().Cerrar();
  for (Recordset* rs : {&a, &b, &c}) {
    EXPECT_FALSE(rs->IsOpen());
    EXPECT_RAISES(rs->RecordCount(), 3420);
  }
  EXPECT_RAISES(Conexion().execute("DELETE FROM tGeneral"), 3420);
  EXPECT_TRUE(lookup.IsOpen()) << "the other database and its recordsets stay";
  Conexion().mdb(bd347lec);
  EXPECT_EQ(Conexion().openRecordset("SELECT count(*) FROM TPaises").RecordCount(), 1);
}

TEST_F(ConexionTest, RecordsetsMoveAndReadFieldsByPositionOrName) {
  Conexion().mdb(bd347mod);
  Conexion().InicializaBD(mod_);
  Conexion().execute("INSERT INTO tGeneral (ActOnline, Idioma) VALUES (-1, 'E')");
  Recordset rs = Conexion().openRecordset("SELECT ActOnline, Idioma FROM tGeneral", 8);
  EXPECT_EQ(rs.RecordCount(), 2);
  EXPECT_EQ(rs.Fields("IDIOMA").Value(), Variant("C"));
  rs.MoveNext();
  EXPECT_EQ(rs.Fields(0).Value(), Variant(-1));
  rs.MoveNext();
  EXPECT_TRUE(rs.Eof());
  EXPECT_RAISES(rs.Fields(0).Value(), 3021);
  EXPECT_RAISES(rs.MoveNext(), 3021);
  rs.MoveFirst();  // type 8 asked for forward-only; every recordset can go back
  EXPECT_EQ(rs.Fields(1).Name(), "Idioma");
  EXPECT_RAISES(rs.Fields("nope"), 3265);
  EXPECT_RAISES(rs.Fields(2), 3265);
  Recordset none = Conexion().openRecordset("SELECT * FROM TDeclarante");
  EXPECT_TRUE(none.Eof() && none.Bof());
  EXPECT_RAISES(none.MoveFirst(), 3021);
  EXPECT_RAISES(Recordset().RecordCount(), 91);
}

TEST_F(ConexionTest, TheBusyPointerShowsAroundEachOperationAndStaysAfterAFailure) {
  Conexion().mdb(bd347mod);
  Conexion().InicializaBD(mod_);
  Conexion().execute("DELETE FROM TDeclarante");
  Conexion().openRecordset("SELECT * FROM TDeclarante");
  Conexion().Cerrar();
  EXPECT_EQ(pointer_.calls, "on off on off on off on off ");
  pointer_.calls.clear();
  Conexion().InicializaBD(mod_);
  EXPECT_ANY_THROW(Conexion().execute("DELETE FROM Nowhere"));
  EXPECT_EQ(pointer_.calls, "on off on off on ") << "the failure leaves the hourglass";
  pointer_.calls.clear();
  { cConexionDAO own; }
  EXPECT_EQ(pointer_.calls, "on off ");
}

TEST_F(ConexionTest, InicializaBDAlwaysActsOnTheSharedInstance) {
  cConexionDAO own;
  own.mdb(bd347mod);
  Conexion().mdb(bd347mod);
  own.InicializaBD(mod_);
  EXPECT_RAISES(own.execute("DELETE FROM tGeneral"), 91) << "its own database was never opened";
  Conexion().execute("DELETE FROM tGeneral");
}

TEST_F(ConexionTest, EachThreadHasItsOwnConnection) {
  Conexion().mdb(bd347lec);
  cConexionDAO* mine = &Conexion();
  cConexionDAO* theirs = nullptr;
  int32_t error = 0;
  std::thread([&] {
    theirs = &Conexion();
    const auto e = test::ErrorOf([] { Conexion().execute("DELETE FROM tGeneral"); });
    error = e ? e->Number() : 0;
  }).join();
  EXPECT_NE(mine, theirs);
  EXPECT_EQ(error, 91) << "nothing opened on the new thread";
}

}  // namespace
}  // namespace zerbal
