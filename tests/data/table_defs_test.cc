// Table definitions: fields read as the engine holds them, and each change
// done whole or not at all, keeping rows, keys, counter and indexes.

#include "data/table_defs.h"

#include "data/transaction.h"
#include "testutil.h"

namespace zerbal::data {
namespace {

class TableDefsTest : public test::DatabaseTest {
 protected:
  TableDefsTest() : db_(workspace_.OpenDatabase(mod_, false, false, "")) {
    for (const char* moneda : {"E", "P", "E"}) {
      test::Exec(mod_, std::string("INSERT INTO TDeclaraciones (coddecr, ejercicio, moneda) "
                                   "VALUES (7, 2014, '") + moneda + "')");
    }
    test::Exec(mod_, "DELETE FROM TDeclaraciones WHERE coddecla = 3");
  }

  // The names of the table's fields, in order, as the engine has them now.
  std::vector<std::string> Names(const std::string& table) {
    std::vector<std::string> names;
    const TableDef def = TableDefs(db_).Item(table);
    for (const FieldDef& f : def.Fields()) names.push_back(f.name);
    return names;
  }

  Workspace workspace_{"test", "admin", "", 2};
  Database db_;
};

TEST_F(TableDefsTest, FieldsReadAsTheEngineHoldsThem) {
  const struct {
    const char* table;
    const char* field;
    int type, size;
    const char* default_value;
    bool required, zero_length, counter;
    int position;
  } rows[] = {
      {"toperadores", "CODOPE", kFieldLong, 0, "", false, false, true, 0},
      {"tOperadores", "paiso", kFieldText, 3, "''", false, true, false, 3},
      {"tOperadores", "importe", kFieldDouble, 0, "", false, false, false, 7},
      {"tOperadores", "ejerimpmet", kFieldLong, 0, "0", false, false, false, 13},
      {"tOperadores", "siglaspaisintra", kFieldText, 2, "''", true, true, false, 22},
      {"tArrendamientos", "provi", kFieldLong, 0, "0", true, false, false, 3},
      {"tGeneral", "ActOnline", kFieldInteger, 0, "", false, false, false, 0},
  };
  for (const auto& row : rows) {
    const TableDef table = TableDefs(db_).Item(row.table);
    const FieldDef& f = table.Field(row.field);
    EXPECT_EQ(std::tie(f.type, f.size, f.default_value, f.required, f.allow_zero_length,
                       f.counter, f.ordinal_position),
              std::tie(row.type, row.size, row.default_value, row.required, row.zero_length,
                       row.counter, row.position))
        << row.table << "." << row.field;
  }
  EXPECT_RAISES(TableDefs(db_).Item("tNada"), errc::kItemNotFound);
  EXPECT_RAISES(TableDefs(db_).Item("tOperadores").Field("nada"), errc::kItemNotFound);
}

TEST_F(TableDefsTest, AppendedFieldsStandAfterTheirPositionAndKeepEverything) {
  TableDef table = TableDefs(db_).Item("tdeclaraciones");
  const int ejercicio = table.Field("ejercicio").ordinal_position;
  FieldDef a = CreateField("a", kFieldText, 2);
  a.ordinal_position = ejercicio;
  FieldDef b = CreateField("b", kFieldInteger);
  b.ordinal_position = ejercicio;
  b.default_value = "7";
  b.required = true;
  table.Append(a);
  table.Append(b);
  table.Append(CreateField("c", kFieldDouble));
  const std::vector<std::string> order = {"coddecla", "coddecr", "ejercicio", "a", "b", "moneda", "c"};
  EXPECT_EQ(Names("TDeclaraciones"), order);

  EXPECT_EQ(test::Rows(mod_, "SELECT coddecla, moneda, a, b, c FROM TDeclaraciones"),
            (std::vector<std::vector<Variant>>{{1, "E", Variant::Null(), 7, Variant::Null()},
                                               {2, "P", Variant::Null(), 7, Variant::Null()}}));
  test::Exec(mod_, "INSERT INTO TDeclaraciones (coddecr, a) VALUES (8, 'xy')");
  EXPECT_EQ(test::Rows(mod_, "SELECT max(coddecla) FROM TDeclaraciones")[0][0], Variant(4))
      << "the counter never gives a deleted key again";
  EXPECT_RAISES(test::Exec(mod_, "UPDATE TDeclaraciones SET a = 'xyz'"), errc::kFieldTooSmall);
  EXPECT_RAISES(test::Exec(mod_, "UPDATE TDeclaraciones SET a = ''"), errc::kZeroLengthString);
  EXPECT_RAISES(test::Exec(mod_, "UPDATE TDeclaraciones SET b = 40000"), errc::kNumericOverflow);
  EXPECT_RAISES(test::Exec(mod_, "UPDATE TDeclaraciones SET b = NULL"), errc::kNullNotAllowed);
  EXPECT_EQ(test::Rows(mod_, "SELECT name FROM sqlite_schema WHERE tbl_name = 'TDeclaraciones' "
                             "AND type = 'index'"),
            (std::vector<std::vector<Variant>>{{"TDeclaraciones_coddecr"}}));
}

TEST_F(TableDefsTest, DeleteAndRenameKeepTheOtherFieldsAndTheirValues) {
  TableDef table = TableDefs(db_).Item("TDeclaraciones");
  table.Rename("moneda", "divisa");
  table.Delete("ejercicio");
  EXPECT_EQ(Names("TDeclaraciones"), (std::vector<std::string>{"coddecla", "coddecr", "divisa"}));
  EXPECT_EQ(test::Rows(mod_, "SELECT coddecla, coddecr, divisa FROM TDeclaraciones"),
            (std::vector<std::vector<Variant>>{{1, 7, "E"}, {2, 7, "P"}}));
  const std::optional<Error> error =
      test::ErrorOf([&] { test::Exec(mod_, "UPDATE TDeclaraciones SET divisa = 'EU'"); });
  ASSERT_TRUE(error);
  EXPECT_EQ(error->Number(), errc::kFieldTooSmall);
  EXPECT_NE(error->Description().find("size_divisa"), std::string::npos) << error->Description();
}

TEST_F(TableDefsTest, RefusedChangesLeaveTheTableAsItWas) {
  TableDef table = TableDefs(db_).Item("TDeclaraciones");
  const auto before = test::Rows(mod_, "SELECT * FROM TDeclaraciones");
  FieldDef required = CreateField("r", kFieldLong);
  required.required = true;
  FieldDef bad_default = CreateField("d", kFieldLong);
  bad_default.default_value = "0) ; DROP TABLE tGeneral --";
  const struct {
    const char* what;
    std::function<void()> change;
    int32_t error;
  } rows[] = {
      {"required without default", [&] { table.Append(required); }, errc::kNullNotAllowed},
      {"default not a literal", [&] { table.Append(bad_default); }, errc::kInvalidOperation},
      {"name twice", [&] { table.Append(CreateField("MONEDA", kFieldText, 1)); },
       errc::kFieldDefinedTwice},
      {"name not plain", [&] { CreateField("a b", kFieldText, 1); }, errc::kInvalidName},
      {"no such type", [&] { CreateField("x", 12); }, errc::kInvalidOperation},
      {"delete the key", [&] { table.Delete("coddecla"); }, errc::kFieldInIndex},
      {"delete an indexed field", [&] { table.Delete("coddecr"); }, errc::kFieldInIndex},
      {"delete none", [&] { table.Delete("nada"); }, errc::kItemNotFound},
      {"rename onto another", [&] { table.Rename("moneda", "Ejercicio"); },
       errc::kFieldDefinedTwice},
  };
  for (const auto& row : rows) {
    EXPECT_RAISES(row.change(), row.error) << row.what;
    EXPECT_EQ(Names("TDeclaraciones"),
              (std::vector<std::string>{"coddecla", "coddecr", "ejercicio", "moneda"}))
        << row.what;
  }
  EXPECT_EQ(test::Rows(mod_, "SELECT * FROM TDeclaraciones"), before);
  EXPECT_EQ(test::Rows(mod_, "SELECT count(*) FROM tGeneral")[0][0], Variant(1));
  {
    Transaction unit(db_);
    table.Append(CreateField("t", kFieldDouble));
  }
  table.Refresh();
  EXPECT_EQ(table.Fields().size(), 4u) << "a change inside a transaction not committed is undone";
}

}  // namespace
}  // namespace zerbal::data
