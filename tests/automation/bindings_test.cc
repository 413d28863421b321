// The record classes and the connection driven by name: arguments changed
// by reference, optional arguments left out, late-binding errors, an error
// of the library passed on unchanged, and an object returned by a member.

#include "testutil.h"
#include "zerbal/automation.h"
#include "zerbal/presentador.h"

namespace zerbal {
namespace {

using Args = std::vector<Variant>;
using Rows = std::vector<std::vector<Variant>>;

class BindingsTest : public test::DatabaseTest {
 protected:
  // A new object of `progid` with both paths set.
  std::unique_ptr<AutomationObject> Make(std::string_view progid) {
    auto object = CreateObject(progid);
    object->Let("mdbmod", mod_);
    object->Let("mdblec", lec_);
    return object;
  }
  static Variant Call(AutomationObject& object, std::string_view name, Args args) {
    return object.Call(name, args);
  }
};

// The presenter's buffer: session_test.cc, through the bridge.
TEST_F(BindingsTest, BuffersTakenByReferenceComeBackInTheArguments) {
  auto declarant = Make("zerbal.cDeclarante");
  const Variant code = Call(*declarant, "GuardarDeclarante", {test::PersonBuffer(0, "15210220C", "Ane")});
  Args args{"1", "to be replaced"};  // the code as text converts as late binding does
  declarant->Call("cargardeclarante", args);
  ASSERT_TRUE(args[1].IsArray());
  EXPECT_EQ(args[1](0), code);
  EXPECT_EQ(args[1](1), Variant("15210220C"));
  EXPECT_EQ(args[0], Variant("1")) << "an argument taken by value stays as it was";
}

TEST_F(BindingsTest, OptionalArgumentsLeftOutTakeTheirDefaults) {
  auto declarant = Make("zerbal.cDeclarante");
  auto declarations = Make("zerbal.cDeclaraciones");
  const Variant kept = Call(*declarant, "GuardarDeclarante", {test::PersonBuffer(0, "A", "Kept")});
  const Variant gone = Call(*declarant, "GuardarDeclarante", {test::PersonBuffer(0, "B", "Gone")});
  Call(*declarations, "GuardarDeclaracion", {2001, "E", kept});
  Call(*declarations, "GuardarDeclaracion", {2005, "P", gone});

  EXPECT_EQ(Call(*declarations, "MaxEjerMon", {false})(0, 1), Variant("2005"));
  EXPECT_EQ(Call(*declarations, "MaxEjerMon", {true})(0, 1), Variant("2001"))
      << "without intEjerMin every euro year counts";
  EXPECT_TRUE(Call(*declarations, "MaxEjerMon", {true, 1}).IsNull()) << "only from 2002";

  Call(*declarant, "EliminarDeclarante", {kept});
  Call(*declarant, "EliminarDeclarante", {gone, true});
  EXPECT_EQ(test::Rows(mod_, "SELECT ejercicio FROM TDeclaraciones"), (Rows{{2001}}))
      << "bDeclaraciones left out is False: the declarations stay";
  EXPECT_EQ(test::Rows(mod_, "SELECT COUNT(*) FROM TDeclarante"), (Rows{{0}}));

  auto validation = CreateObject("brevandol.cmiscelaneos");
  EXPECT_EQ(Call(*validation, "ValidaNifCif", {"54362315"}), Variant(false)) << "with its letter";
  EXPECT_EQ(Call(*validation, "validanifcif", {"54362315", "-1"}), Variant(true))
      << "the text \"-1\" as True: without its letter";
}

TEST_F(BindingsTest, LateBindingErrors) {
  const struct {
    const char* progid;
    const char* member;
    Invocation kind;
    Args args;
    int32_t error;
  } rows[] = {
      {"zerbal.cDeclarante", "CargarDeclarante", Invocation::kMethod, {1}, 450},
      {"zerbal.cDeclarante", "EliminarDeclarante", Invocation::kMethod, {1, true, 1}, 450},
      {"zerbal.cDeclaraciones", "MaxEjerMon", Invocation::kMethod, {"maybe"}, 13},
      {"zerbal.cDeclaraciones", "MaxEjerMon", Invocation::kMethod, {true, 40000}, 6},
      {"zerbal.cDeclarado", "ObtenerDeclarados", Invocation::kMethod, {Variant::Null()}, 13},
      {"zerbal.cArrendamiento", "CargarArrendamiento", Invocation::kMethod, {1.5e10}, 6},
      {"zerbal.cPresentador", "Volar", Invocation::kMethod, {}, 438},
      {"zerbal.cPresentador", "mdbmod", Invocation::kPropertyGet, {}, 438},
      {"zerbal.cPresentador", "CargarPresentador", Invocation::kPropertyLet, {1}, 438},
      {"zerbal.cConexionDAO", "mdb", Invocation::kPropertyLet, {"abc"}, 13},
      {"zerbal.cConexionDAO", "Ddname", Invocation::kPropertyLet, {"a", "b"}, 450},
      {"zerbal.cConexionDAO", "execute", Invocation::kMethod, {"DELETE FROM t", "x"}, 13},
      {"zerbal.cConexionDAO", "openRecordset", Invocation::kMethod, {"SELECT 1"}, 13},
  };
  for (auto& row : rows) {
    // Each error comes before the member runs: no database is needed.
    auto object = CreateObject(row.progid);
    Args args = row.args;
    EXPECT_RAISES(object->Invoke(row.member, row.kind, args), row.error)
        << row.progid << "." << row.member;
  }
  auto connection = CreateObject("zerbal.cConexionDAO");
  Args none;
  EXPECT_RAISES(connection->InvokeObject("Cerrar", Invocation::kMethod, none), 13)
      << "Cerrar returns no object, and does not run: nothing is open to close";
}

// As a call by name gives it; session_test.cc: as the bridge answers it.
TEST_F(BindingsTest, AnErrorOfTheLibraryComesOutUnchanged) {
  const std::string nowhere = (dir_ / "missing.db").string();
  auto presenter = CreateObject("zerbal.cPresentador");
  presenter->Let("mdbmod", nowhere);
  cPresentador direct;
  direct.mdbmod(nowhere);
  const auto got = test::ErrorOf([&] { Call(*presenter, "EliminarPresentador", {1}); });
  const auto want = test::ErrorOf([&] { direct.EliminarPresentador(1); });
  ASSERT_TRUE(got && want);
  EXPECT_EQ(want->Number(), 3024);
  EXPECT_EQ(std::tuple(got->Number(), got->Source(), got->Description()),
            std::tuple(want->Number(), want->Source(), want->Description()));
}

TEST_F(BindingsTest, AConnectionCreatedByNameIsItsOwnAndReturnsRecordsets) {
  auto presenter = Make("zerbal.cPresentador");
  Call(*presenter, "GuardarPresentador", {test::PersonBuffer(0, "B1", "Uno")});  // leaves Conexion() open
  auto connection = CreateObject("ZERBAL.CCONEXIONDAO");
  EXPECT_RAISES(Call(*connection, "Cerrar", {}), errc::kObjectNotSet)
      << "a new connection holds no database, whatever the shared one holds";
  connection->Let("mdb", 0);
  Call(*connection, "CrearWorkSpace", {});
  Call(*connection, "AbrirBD", {mod_});
  Call(*connection, "execute", {"INSERT INTO TPresentador (dni_cif, nombre) VALUES ('B2', 'Dos')"});

  Args sql{"SELECT codpres, nombre FROM TPresentador ORDER BY codpres", 4};
  std::unique_ptr<AutomationObject> rs =
      connection->InvokeObject("openrecordset", Invocation::kMethod, sql);
  ASSERT_NE(rs, nullptr);
  EXPECT_EQ(rs->ClassName(), "Recordset");
  EXPECT_EQ(rs->Get("RecordCount"), Variant(2));
  EXPECT_EQ(rs->Get("FieldCount"), Variant(2));
  Args by_name{"NOMBRE"}, by_position{int16_t{1}};
  EXPECT_EQ(rs->Invoke("Fields", Invocation::kPropertyGet, by_name), Variant("Uno"));
  Call(*rs, "MoveNext", {});
  EXPECT_EQ(rs->Invoke("fields", Invocation::kMethod, by_position), Variant("Dos"));
  EXPECT_EQ(rs->Get("EOF"), Variant(false));
  Call(*rs, "MoveNext", {});
  EXPECT_EQ(rs->Get("eof"), Variant(true));
}

}  // namespace
}  // namespace zerbal
