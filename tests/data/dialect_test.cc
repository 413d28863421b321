// The statements the system builds behave as on the original engine.

#include "data/engine.h"
#include "testutil.h"
#include "zerbal/conexion_dao.h"

namespace zerbal {
namespace {

class DialectTest : public test::DatabaseTest {
 protected:
  void SetUp() override {
    Conexion().mdb(bd347mod);
    Conexion().InicializaBD(mod_);
    for (const char* nif : {"12345678Z", "X1234567L", "87654321X", "1234567Y", "ab-12"}) {
      Run(std::string("INSERT INTO TDeclarante (dni_cifd, nombred) VALUES ('") + nif + "', 'n')");
    }
  }
  void Run(const std::string& sql) { Conexion().execute(sql); }
  std::vector<std::string> Column(const std::string& sql) {
    Recordset rs = Conexion().openRecordset(sql);
    std::vector<std::string> values;
    for (; !rs.Eof(); rs.MoveNext()) values.push_back(CStrOf(rs.Fields(0).Value()));
    return values;
  }
  static std::string CStrOf(const Variant& v) {
    return v.Kind() == VarKind::kString ? v.AsString() : DebugString(v);
  }
  // The engine's plan for the statement as the layer translates it.
  std::string Plan(const std::string& sql) {
    std::string plan;
    const std::string translated = data::EngineConnection::Open(mod_, false)->Translate(sql);
    for (const auto& row : test::Rows(mod_, "EXPLAIN QUERY PLAN " + translated)) {
      plan += row[3].AsString();
    }
    return plan;
  }
  using Strings = std::vector<std::string>;
};

TEST_F(DialectTest, TopSelectsTheFirstRowsEvenInsideASubquery) {
  EXPECT_EQ(Column("Select TOP 2 dni_cifd From TDeclarante order by coddec desc"),
            (Strings{"ab-12", "1234567Y"}));
  EXPECT_EQ(Column("Select TOP 9 dni_cifd From TDeclarante order by coddec").size(), 5u)
      << "fewer rows than asked";
  EXPECT_EQ(Column("SELECT coddec FROM TDeclarante WHERE coddec IN "
                   "(SELECT TOP 2 coddec FROM TDeclarante ORDER BY coddec) ORDER BY coddec DESC"),
            (Strings{"2", "1"}));
  Run("INSERT INTO TDeclaraciones (coddecr, ejercicio, moneda) VALUES (1, 2013, 'E')");
  Run("INSERT INTO TDeclaraciones (coddecr, ejercicio, moneda) VALUES (2, 2013, 'E')");
  Run("INSERT INTO TDeclaraciones (coddecr, ejercicio, moneda) VALUES (1, 2009, 'P')");
  EXPECT_EQ(Column("SELECT distinct top 1 ejercicio, moneda FROM tdeclaraciones order by "
                   "ejercicio desc"),
            (Strings{"2013"}));
}

TEST_F(DialectTest, LikeUsesTheOriginalWildcardsInAnyCase) {
  const struct {
    const char* pattern;
    Strings matches;
  } rows[] = {
      {"1234*", {"12345678Z", "1234567Y"}},
      {"x1234567l", {"X1234567L"}},
      {"1234567?Z", {"12345678Z"}},
      {"########*", {"12345678Z", "87654321X"}},
      {"[XY]*", {"X1234567L"}},
      {"[!0-9]*", {"X1234567L", "ab-12"}},
      {"*[a-c]-##", {"ab-12"}},
      {"%", {}},
      {"ab_12", {}},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(Column(std::string("Select dni_cifd From TDeclarante Where dni_cifd like '") +
                     row.pattern + "' order by coddec"),
              row.matches)
        << row.pattern;
  }
  Run("UPDATE TDeclarante SET nombred = 'Ñoño Ibáñez' WHERE coddec = 1");
  EXPECT_EQ(Column("Select coddec From TDeclarante Where nombred like 'ñoño*ÁÑ*'"),
            (Strings{"1"}));
  EXPECT_EQ(Column("Select coddec From TDeclarante Where not nombred like 'ñ*' order by coddec"),
            (Strings{"2", "3", "4", "5"}));
}

TEST_F(DialectTest, PrefixLikeOnTheIdentifierColumnSearchesItsIndex) {
  const std::string plan = Plan("Select coddec From TDeclarante Where dni_cifd like 'x12*'");
  EXPECT_NE(plan.find("INDEX TDeclarante_dni_cifd"), std::string::npos) << plan;
  EXPECT_EQ(Column("Select dni_cifd From TDeclarante Where dni_cifd like 'x12*'"),
            (Strings{"X1234567L"}));
}

TEST_F(DialectTest, TextComparisonIgnoresTheCaseOfEveryLatinLetter) {
  Run("DELETE FROM TDeclarante");
  for (const char* name : {"Ñandú", "ÑANDÚ", "école", "ÉCOLE", "Zubia", "Œuvre", "ŠKODA",
                           "x1234567l"}) {
    Run(std::string("INSERT INTO TDeclarante (dni_cifd, nombred) VALUES ('") + name + "', '" +
        name + "')");
  }
  const struct {
    const char* sql;
    Strings rows;
  } rows[] = {
      {"Select nombred From TDeclarante Where dni_cifd = 'ñANDÚ' order by coddec",
       {"Ñandú", "ÑANDÚ"}},
      {"Select nombred From TDeclarante Where nombred = 'X1234567L'", {"x1234567l"}},
      {"Select count(*) From TDeclarante Where nombred <> 'École'", {"6"}},
      {"Select nombred From TDeclarante Where nombred = 'œUVRE'", {"Œuvre"}},
      {"Select nombred From TDeclarante Where dni_cifd = 'škoda'", {"ŠKODA"}},
      {"Select nombred From TDeclarante Where nombred > 'ÑANDÚ' order by coddec",
       {"Œuvre", "ŠKODA"}},
      {"Select count(*) From TDeclarante Where nombred between 'ñandú' and 'ÑANDÚ'", {"2"}},
      {"Select count(*) From TDeclarante group by nombred order by nombred",
       {"1", "1", "2", "2", "1", "1"}},
      {"Select count(*) From (Select distinct nombred From TDeclarante)", {"6"}},
  };
  for (const auto& row : rows) EXPECT_EQ(Column(row.sql), row.rows) << row.sql;
  const std::string plan = Plan("Select coddec From TDeclarante Where dni_cifd = 'ñANDÚ'");
  EXPECT_NE(plan.find("INDEX TDeclarante_dni_cifd"), std::string::npos) << plan;
}

TEST_F(DialectTest, InsertSelectFillsColumnsByNameAndCountersAreNeverReused) {
  Run("INSERT INTO TDeclaraciones ( coddecr, ejercicio, moneda ) VALUES ( 7, 2013, 'E')");
  Run("insert into tDeclaraciones  select coddecr,ejercicio,moneda from tDeclaraciones where "
      "coddecla = 1");
  EXPECT_EQ(Column("Select coddecla & '/' & coddecr & '/' & ejercicio From TDeclaraciones "
                   "order by coddecla"),
            (Strings{"1/7/2013", "2/7/2013"}));
  Run("DELETE FROM TDeclaraciones WHERE coddecla = 2");
  Run("INSERT INTO TDeclaraciones ( coddecr, ejercicio, moneda ) VALUES ( 8, 2014, 'E')");
  EXPECT_EQ(Column("SELECT MAX(coddecla) FROM TDeclaraciones "), (Strings{"3"}))
      << "the deleted key 2 is not given again";
  EXPECT_RAISES(Run("insert into tDeclaraciones select count(*) from tDeclaraciones"), 3075);
}

TEST_F(DialectTest, NumberColumnsTakeNumericTextAndRefuseOtherText) {
  Run("INSERT INTO tOperadores (coddeclar, impopeT1, ejerimpmet, importe) "
      "VALUES (1, '12.5', '2014', -1234)");
  const auto rows = test::Rows(mod_, "SELECT impopeT1, ejerimpmet, importe FROM tOperadores");
  ASSERT_EQ(rows.size(), 1u);
  EXPECT_EQ(rows[0][0], Variant(12.5));
  EXPECT_EQ(rows[0][1], Variant(2014));
  EXPECT_EQ(rows[0][2], Variant(-1234.0));
  EXPECT_RAISES(Run("INSERT INTO tOperadores (coddeclar, impopeT1) VALUES (1, 'abc')"), 3464);
  EXPECT_RAISES(Run("UPDATE tOperadores SET ejerimpmet = '20,14'"), 3464);
  EXPECT_RAISES(Run("UPDATE tOperadores SET ejerimpmet = 3000000000"), 3349);
  EXPECT_RAISES(Run("UPDATE tOperadores SET siglaspaisintra = 'ESP'"), 3163);
  EXPECT_RAISES(Run("UPDATE tOperadores SET siglaspaisintra = 'ÑÑ', claveopo = 'AB'"), 3163);
  Run("UPDATE tOperadores SET siglaspaisintra = 'ÑÑ'");  // two characters, four bytes
  EXPECT_EQ(test::Rows(mod_, "SELECT ejerimpmet, siglaspaisintra FROM tOperadores")[0],
            (std::vector<Variant>{2014, "ÑÑ"}))
      << "refused statements changed nothing";
}

TEST_F(DialectTest, OnlyOneStatementRunsPerCall) {
  EXPECT_RAISES(Run("DELETE FROM TDeclarante; DELETE FROM TDeclaraciones"), 3142);
  EXPECT_RAISES(Run("DELETE FROM TDeclarante WHERE coddec = 1;DROP TABLE TDeclarante"), 3142);
  EXPECT_RAISES(Conexion().openRecordset("SELECT 1; DELETE FROM TDeclarante"), 3142);
  EXPECT_EQ(Column("Select count(*) From TDeclarante"), (Strings{"5"}));
  Run("DELETE FROM TDeclarante WHERE coddec = 5;  ");
  EXPECT_EQ(Column("Select count(*) From TDeclarante"), (Strings{"4"}))
      << "a trailing semicolon is not a second statement";
}

TEST_F(DialectTest, StatementsOutsideTheLanguageAreRefused) {
  const std::string other = (dir_ / "other.db").string();
  EXPECT_RAISES(Run("ATTACH '" + other + "' AS other"), 3129);
  EXPECT_FALSE(std::filesystem::exists(other));
  EXPECT_RAISES(Run("PRAGMA user_version = 7"), 3129);
  EXPECT_RAISES(Run("  "), 3129);
  EXPECT_RAISES(Run("DELETE FROM TDeclarante WHERE"), 3075);
  EXPECT_RAISES(Run("DELETE FROM NoSuchTable"), 3075);
  EXPECT_RAISES(Run("CREATE TABLE t AS SELECT ? AS x"), 3075);  // a definition lifts no value
  EXPECT_RAISES(Run("SELECT * FROM TDeclarante"), 3065);
  EXPECT_RAISES(Conexion().openRecordset("DELETE FROM TDeclarante"), 3219);
  EXPECT_EQ(Column("Select count(*) From TDeclarante"), (Strings{"5"}));
}

}  // namespace
}  // namespace zerbal
