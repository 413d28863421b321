// Statements prepared once per shape behave as if each call were prepared
// afresh: values that need other handling, tables that change between
// calls, and two databases used in turn on one thread.

#include "testutil.h"
#include "zerbal/conexion_dao.h"

namespace zerbal {
namespace {

class StatementCacheTest : public test::DatabaseTest {
 protected:
  void Open(int32_t which) {
    Conexion().mdb(which);
    Conexion().InicializaBD(which == bd347mod ? mod_ : lec_);
  }
  std::string First(const std::string& sql) {
    Recordset rs = Conexion().openRecordset(sql);
    return rs.Eof() ? "(none)" : DebugString(rs.Fields(0).Value());
  }
};

TEST_F(StatementCacheTest, OneShapeWithValuesThatNeedOtherHandling) {
  Open(bd347mod);
  const std::string insert = "INSERT INTO tOperadores (coddeclar, razon, ejerimpmet, siglaspaisintra) VALUES (1, ";
  const struct {
    const char* values;
    int32_t error;  // 0: stored
    const char* stored;
  } rows[] = {
      {"'O´Brien', '2014', 'ES')", 0, "\"O´Brien\" 2014"},
      {"'Arana', 'abc', 'ES')", 3464, nullptr},
      {"'Arana', '2015', 'ESP')", 3163, nullptr},
      {"'It''s', 2016, 'FR')", 0, "\"It's\" 2016"},
      {"'Ibáñez', '2.017e3', 'ÑÑ')", 0, "\"Ibáñez\" 2017"},
      {"'Arana', 3000000000, 'ES')", 3349, nullptr},
      {"'O'Brien', '2014', 'ES')", 3075, nullptr},
      {"Null, Null, '')", 0, "Null Null"},  // siglaspaisintra is required
  };
  for (const auto& row : rows) {
    const auto error = test::ErrorOf([&] { Conexion().execute(insert + row.values); });
    EXPECT_EQ(error ? error->Number() : 0, row.error) << row.values;
    if (row.stored == nullptr) continue;
    const auto last = test::Rows(mod_, "SELECT razon, ejerimpmet FROM tOperadores ORDER BY codope DESC LIMIT 1");
    ASSERT_EQ(last.size(), 1u) << row.values;
    EXPECT_EQ(DebugString(last[0][0]) + " " + DebugString(last[0][1]), row.stored) << row.values;
  }
  EXPECT_EQ(First("SELECT count(*) FROM tOperadores WHERE ejerimpmet = '2014'"), "1");
  EXPECT_EQ(First("SELECT count(*) FROM tOperadores WHERE ejerimpmet = 2016"), "1");
}

TEST_F(StatementCacheTest, TablesChangedBetweenCalls) {
  Open(bd347mod);
  const std::string select = "SELECT * FROM TDeclaraciones WHERE coddecla = ";
  Conexion().execute("INSERT INTO TDeclaraciones (coddecr, ejercicio, moneda) VALUES (1, 2014, 'E')");
  EXPECT_EQ(Conexion().openRecordset(select + "1").FieldCount(), 4);
  // Through this connection, then through another one (as the upgrade of
  // another process would).
  Conexion().execute("ALTER TABLE TDeclaraciones ADD COLUMN extra TEXT");
  EXPECT_EQ(Conexion().openRecordset(select + "1").FieldCount(), 5);
  test::Exec(mod_, "ALTER TABLE TDeclaraciones ADD COLUMN more TEXT");
  Open(bd347mod);
  EXPECT_EQ(Conexion().openRecordset(select + "1").FieldCount(), 6);
  test::Exec(mod_, "DROP TABLE TDeclaraciones");
  Open(bd347mod);
  EXPECT_RAISES(Conexion().openRecordset(select + "1"), 3075);
}

TEST_F(StatementCacheTest, TwoDatabasesInTurnOnOneThread) {
  // The same text names a table of each database, with other columns.
  const std::string sql = "select * from tgeneral";
  for (int round = 0; round < 3; ++round) {
    Open(bd347mod);
    EXPECT_EQ(Conexion().openRecordset(sql).Fields(1).Name(), "Idioma") << round;
    Open(bd347lec);
    EXPECT_EQ(Conexion().openRecordset(sql).Fields(0).Name(), "URLAct") << round;
  }
}

}  // namespace
}  // namespace zerbal
