// Every public member of every class a client drives by name is reachable
// by name, with the argument counts of its interface. The interfaces are
// written here as data, apart from the bindings, so that a member added to
// one and not the other is caught; a class built later is a new row.

#include <algorithm>
#include <cctype>

#include "testutil.h"
#include "zerbal/automation.h"

namespace zerbal {
namespace {

struct Interface {
  std::string name;  // the ProgID, or the class name of an object only returned
  // Each member as Describe writes it, in the binding's order.
  std::string members;
  // How to get one when it cannot be created by name.
  std::unique_ptr<AutomationObject> (*make)(const std::string& mod) = nullptr;
};

std::unique_ptr<AutomationObject> OpenRecordset(const std::string& mod) {
  auto connection = CreateObject("zerbal.cConexionDAO");
  std::vector<Variant> none, path{mod}, sql{"SELECT * FROM TPresentador"};
  connection->Let("mdb", 0);
  connection->Call("CrearWorkSpace", none);
  connection->Call("AbrirBD", path);
  return connection->InvokeObject("openRecordset", Invocation::kMethod, sql);
}

// Class_Terminate is not a member a client calls: it runs when the object is released.
const std::vector<Interface>& Interfaces() {
  static const std::vector<Interface> interfaces = {
      {"zerbal.cConexionDAO",
       "Ddname G0, Ddname L1, mdb L1, CrearWorkSpace M0, InicializaBD M1, AbrirBD M1, "
       "Cerrar M0, execute M1+1, openRecordset M1+1 object"},
      {"Recordset",
       "RecordCount G0, MoveFirst M0, MoveLast M0, MoveNext M0, MovePrevious M0, EOF G0, "
       "BOF G0, Fields G1, FieldCount G0, Close M0",
       OpenRecordset},
      {"zerbal.cDeclarante",
       "mdbmod L1, mdblec L1, CargarDeclarante M2, GuardarDeclarante M1, "
       "EliminarDeclarante M1+1, ObtenerUltimosDeclarantes M0, NifRepetido M1, "
       "ObtenerDeclarantes M0"},
      {"zerbal.cDatosGenerales",
       "mdbmod L1, mdblec L1, ValidaNifIntra M2, NumeroDeclarantes M0, CargarResultado M1, "
       "ObtenerDescriVia M2, ObtenerNombreProvincia M2, ObtenerDesClave M3, "
       "ObtenerDescripciones M1, ObtenerDesPais M2, ObtenerNombrePaisIntra M2, "
       "RecogerRutaURL M1, ValidaNifCif M1+1, ObtenerIdioma M0, ObtenerActOnline M0, "
       "CambiarIdioma M1, GuardarActOnline M1, ObtenerURLAct M0"},
      {"zerbal.cExportacion",
       "Declaracion G0, Declaracion L1, mdblec G0, mdblec L1, mdbmod G0, mdbmod L1, "
       "Ejercicio G0, Ejercicio L1, Moneda G0, Moneda L1, NoTotalDeclArren G0, "
       "NoTotalDeclArren L1, ExportarDtes M2, TotalDeclarados M3, ExportarReg0 M4, "
       "ExportarReg1 M2, ExportarReg2 M2, ExportarReg3 M2"},
      {"zerbal.cTImpExp", "ObtenerDeclarantes M2, TotalDeclarados M3"},
      {"zerbal.cImpExp",
       "mdbmod G0, mdbmod L1, mdblec G0, mdblec L1, EjercicioMin G0, EjercicioMin L1, "
       "EjercicioMax G0, EjercicioMax L1, Declaracion G0, Declaracion L1, "
       "RechazarDeclaracion G0, RechazarDeclaracion L1, Convertir G0, Convertir L1, "
       "Resultado G0, Resultado L1, Sujeto G0, ObtenerDeclarantes M2, importDte M3, "
       "ImportarDte_Cion M3, importSpte M3+1, importOpeArr M5, ComprobarDeclaracion M2"},
      {"zerbal.cDeclaraciones",
       "mdbmod L1, mdblec L1, ObtenerDeclaraciones M1, EliminarDeclaracion M1, "
       "DuplicarDeclaracion M4, GuardarDeclaracion M3, ObtenerTotalDeclarados M1, "
       "ObtenerTotalArrendamientos M1, ObtenerDeclaracion M2, MaxEjerMon M1+1, "
       "ObtenerMonedaDcion M1, ObtenerTotalDeclaradosVarDtes M2, ObtenerEjercicioDcion M1"},
      {"zerbal.cDeclarado",
       "mdbmod L1, mdblec L1, DeclaradosCoincidentes M11, GuardarDeclarado M1, "
       "ObtenerDeclarados M1, ObtenerDeclaradosOpe M1, CargarDeclarado M1, "
       "EliminarDeclarado M1, SeImportanTodos M1, "
       "ObtenerDeclaradosSinValoresEnCamposNuevos2014 M1"},
      {"zerbal.cArrendamiento",
       "mdbmod L1, mdblec L1, GuardarArrendamiento_2007 M1, GuardarArrendamiento M1, "
       "ObtenerArrendamientos M1, ObtenerTodosLosArr M1, CargarArrendamiento M1, "
       "EliminarArrendamiento M1"},
      {"zerbal.cPresentador",
       "mdbmod L1, mdblec L1, CargarPresentador M1, GuardarPresentador M1, "
       "EliminarPresentador M1, NifRepetido M1"},
      {"zerbal.cTraspaso", "mdbmod L1, mdblec L1, mdbPath L1, Traspaso M0"},
      {"Brevandol.cMiscelaneos", "ValidaNifCif M1+1, ValidarForeignNIf M2"},
  };
  return interfaces;
}

// "Name K<required>[+<optional>][ object]", K being M (method), G (get) or L (let).
std::string Describe(const MemberInfo& m) {
  return m.name + " " + "MGL"[static_cast<int>(m.kind)] + std::to_string(m.required) +
         (m.optional ? "+" + std::to_string(m.optional) : "") + (m.returns_object ? " object" : "");
}

std::string Cased(std::string name, int (*change)(int)) {
  std::transform(name.begin(), name.end(), name.begin(),
                 [&](unsigned char c) { return static_cast<char>(change(c)); });
  return name;
}

class MembersTest : public test::DatabaseTest {
 protected:
  std::unique_ptr<AutomationObject> Make(const Interface& row) {
    return row.make ? row.make(mod_) : CreateObject(row.name);
  }
};

TEST_F(MembersTest, EveryRegisteredClassHasItsInterfaceHereAndTheOtherWayRound) {
  for (const std::string& progid : RegisteredClasses()) {
    EXPECT_TRUE(std::any_of(Interfaces().begin(), Interfaces().end(),
                            [&](const Interface& row) { return row.name == progid; }))
        << progid << " is registered but its interface is not listed here";
  }
  for (const Interface& row : Interfaces()) {
    if (!row.make) {
      EXPECT_EQ(CreateObject(row.name)->ClassName(), row.name);
    }
  }
  EXPECT_RAISES(CreateObject("zerbal.Recordset"), errc::kCannotCreateObject)
      << "a recordset is only returned";
  EXPECT_RAISES(CreateObject("Recordset"), errc::kCannotCreateObject);
}

TEST_F(MembersTest, EachBindingListsExactlyItsInterfaceInOrder) {
  for (const Interface& row : Interfaces()) {
    std::string got;
    for (const MemberInfo& m : Make(row)->Members()) got += (got.empty() ? "" : ", ") + Describe(m);
    EXPECT_EQ(got, row.members) << row.name;
  }
}

// What each binding lists (the interface, by the test above) is what it answers to.
TEST_F(MembersTest, EveryMemberIsFoundByNameInAnyCase) {
  for (const Interface& row : Interfaces()) {
    for (const MemberInfo& m : Make(row)->Members()) {
      for (const std::string& name : {Cased(m.name, ::tolower), Cased(m.name, ::toupper)}) {
        // A fresh object each time: a member found may run, and may close what it holds.
        auto object = Make(row);
        std::vector<Variant> none;
        const std::optional<Error> error = test::ErrorOf([&] { object->Invoke(name, m.kind, none); });
        EXPECT_TRUE(!error || error->Number() != errc::kMemberNotFound)
            << row.name << "." << name << ": " << error->Description();
        EXPECT_EQ(object->ReturnsObject(name, m.kind), m.returns_object) << row.name << "." << name;
      }
    }
  }
}

}  // namespace
}  // namespace zerbal
