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

constexpr Invocation M = Invocation::kMethod;
constexpr Invocation G = Invocation::kPropertyGet;
constexpr Invocation L = Invocation::kPropertyLet;
constexpr bool kObject = true;

struct Interface {
  std::string name;  // the ProgID, or the class name of an object only returned
  std::vector<MemberInfo> members;
  // How to get one when it cannot be created by name.
  std::unique_ptr<AutomationObject> (*make)(const std::string& mod) = nullptr;
};

std::unique_ptr<AutomationObject> OpenRecordset(const std::string& mod) {
  auto connection = CreateObject("zerbal.cConexionDAO");
  std::vector<Variant> none, path{mod}, sql{"SELECT * FROM TPresentador"};
  connection->Let("mdb", 0);
  connection->Call("CrearWorkSpace", none);
  connection->Call("AbrirBD", path);
  return connection->InvokeObject("openRecordset", M, sql);
}

const std::vector<Interface>& Interfaces() {
  static const std::vector<Interface> interfaces = {
      // Class_Terminate is not a member a client calls: it runs when the
      // object is released.
      {"zerbal.cConexionDAO",
       {{"Ddname", G, 0, 0}, {"Ddname", L, 1, 0}, {"mdb", L, 1, 0}, {"CrearWorkSpace", M, 0, 0},
        {"InicializaBD", M, 1, 0}, {"AbrirBD", M, 1, 0}, {"Cerrar", M, 0, 0},
        {"execute", M, 1, 1}, {"openRecordset", M, 1, 1, kObject}}},
      {"Recordset",
       {{"RecordCount", G, 0, 0}, {"MoveFirst", M, 0, 0}, {"MoveLast", M, 0, 0},
        {"MoveNext", M, 0, 0}, {"MovePrevious", M, 0, 0}, {"EOF", G, 0, 0}, {"BOF", G, 0, 0},
        {"Fields", G, 1, 0}, {"FieldCount", G, 0, 0}, {"Close", M, 0, 0}},
       OpenRecordset},
      {"zerbal.cDeclarante",
       {{"mdbmod", L, 1, 0}, {"mdblec", L, 1, 0}, {"CargarDeclarante", M, 2, 0},
        {"GuardarDeclarante", M, 1, 0}, {"EliminarDeclarante", M, 1, 1},
        {"ObtenerUltimosDeclarantes", M, 0, 0}, {"NifRepetido", M, 1, 0},
        {"ObtenerDeclarantes", M, 0, 0}}},
      {"zerbal.cDatosGenerales",
       {{"mdbmod", L, 1, 0}, {"mdblec", L, 1, 0}, {"ValidaNifIntra", M, 2, 0},
        {"NumeroDeclarantes", M, 0, 0}, {"CargarResultado", M, 1, 0},
        {"ObtenerDescriVia", M, 2, 0}, {"ObtenerNombreProvincia", M, 2, 0},
        {"ObtenerDesClave", M, 3, 0}, {"ObtenerDescripciones", M, 1, 0},
        {"ObtenerDesPais", M, 2, 0}, {"ObtenerNombrePaisIntra", M, 2, 0},
        {"RecogerRutaURL", M, 1, 0}, {"ValidaNifCif", M, 1, 1}, {"ObtenerIdioma", M, 0, 0},
        {"ObtenerActOnline", M, 0, 0}, {"CambiarIdioma", M, 1, 0},
        {"GuardarActOnline", M, 1, 0}, {"ObtenerURLAct", M, 0, 0}}},
      {"zerbal.cExportacion",
       {{"Declaracion", G, 0, 0}, {"Declaracion", L, 1, 0}, {"mdblec", G, 0, 0},
        {"mdblec", L, 1, 0}, {"mdbmod", G, 0, 0}, {"mdbmod", L, 1, 0}, {"Ejercicio", G, 0, 0},
        {"Ejercicio", L, 1, 0}, {"Moneda", G, 0, 0}, {"Moneda", L, 1, 0},
        {"NoTotalDeclArren", G, 0, 0}, {"NoTotalDeclArren", L, 1, 0},
        {"ExportarDtes", M, 2, 0}, {"TotalDeclarados", M, 3, 0}, {"ExportarReg0", M, 4, 0},
        {"ExportarReg1", M, 2, 0}, {"ExportarReg2", M, 2, 0}, {"ExportarReg3", M, 2, 0}}},
      {"zerbal.cTImpExp", {{"ObtenerDeclarantes", M, 2, 0}, {"TotalDeclarados", M, 3, 0}}},
      {"zerbal.cImpExp",
       {{"mdbmod", G, 0, 0}, {"mdbmod", L, 1, 0}, {"mdblec", G, 0, 0}, {"mdblec", L, 1, 0},
        {"EjercicioMin", G, 0, 0}, {"EjercicioMin", L, 1, 0}, {"EjercicioMax", G, 0, 0},
        {"EjercicioMax", L, 1, 0}, {"Declaracion", G, 0, 0}, {"Declaracion", L, 1, 0},
        {"RechazarDeclaracion", G, 0, 0}, {"RechazarDeclaracion", L, 1, 0},
        {"Convertir", G, 0, 0}, {"Convertir", L, 1, 0}, {"Resultado", G, 0, 0},
        {"Resultado", L, 1, 0}, {"Sujeto", G, 0, 0}, {"ObtenerDeclarantes", M, 2, 0},
        {"importDte", M, 3, 0}, {"ImportarDte_Cion", M, 3, 0}, {"importSpte", M, 3, 1},
        {"importOpeArr", M, 5, 0}, {"ComprobarDeclaracion", M, 2, 0}}},
      {"zerbal.cDeclaraciones",
       {{"mdbmod", L, 1, 0}, {"mdblec", L, 1, 0}, {"ObtenerDeclaraciones", M, 1, 0},
        {"EliminarDeclaracion", M, 1, 0}, {"DuplicarDeclaracion", M, 4, 0},
        {"GuardarDeclaracion", M, 3, 0}, {"ObtenerTotalDeclarados", M, 1, 0},
        {"ObtenerTotalArrendamientos", M, 1, 0}, {"ObtenerDeclaracion", M, 2, 0},
        {"MaxEjerMon", M, 1, 1}, {"ObtenerMonedaDcion", M, 1, 0},
        {"ObtenerTotalDeclaradosVarDtes", M, 2, 0}, {"ObtenerEjercicioDcion", M, 1, 0}}},
      {"zerbal.cDeclarado",
       {{"mdbmod", L, 1, 0}, {"mdblec", L, 1, 0}, {"DeclaradosCoincidentes", M, 11, 0},
        {"GuardarDeclarado", M, 1, 0}, {"ObtenerDeclarados", M, 1, 0},
        {"ObtenerDeclaradosOpe", M, 1, 0}, {"CargarDeclarado", M, 1, 0},
        {"EliminarDeclarado", M, 1, 0}, {"SeImportanTodos", M, 1, 0},
        {"ObtenerDeclaradosSinValoresEnCamposNuevos2014", M, 1, 0}}},
      {"zerbal.cArrendamiento",
       {{"mdbmod", L, 1, 0}, {"mdblec", L, 1, 0}, {"GuardarArrendamiento_2007", M, 1, 0},
        {"GuardarArrendamiento", M, 1, 0}, {"ObtenerArrendamientos", M, 1, 0},
        {"ObtenerTodosLosArr", M, 1, 0}, {"CargarArrendamiento", M, 1, 0},
        {"EliminarArrendamiento", M, 1, 0}}},
      {"zerbal.cPresentador",
       {{"mdbmod", L, 1, 0}, {"mdblec", L, 1, 0}, {"CargarPresentador", M, 1, 0},
        {"GuardarPresentador", M, 1, 0}, {"EliminarPresentador", M, 1, 0},
        {"NifRepetido", M, 1, 0}}},
      {"zerbal.cTraspaso",
       {{"mdbmod", L, 1, 0}, {"mdblec", L, 1, 0}, {"mdbPath", L, 1, 0}, {"Traspaso", M, 0, 0}}},
      {"Brevandol.cMiscelaneos", {{"ValidaNifCif", M, 1, 1}, {"ValidarForeignNIf", M, 2, 0}}},
  };
  return interfaces;
}

std::string Cased(std::string name, int (*change)(int)) {
  std::transform(name.begin(), name.end(), name.begin(),
                 [&](unsigned char c) { return static_cast<char>(change(c)); });
  return name;
}

std::string Describe(const MemberInfo& m) {
  static constexpr const char* kKinds[] = {"method", "get", "let"};
  return m.name + " (" + kKinds[static_cast<int>(m.kind)] + ", " + std::to_string(m.required) +
         "+" + std::to_string(m.optional) + (m.returns_object ? ", object)" : ")");
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
    std::vector<std::string> want, got;
    for (const MemberInfo& m : row.members) want.push_back(Describe(m));
    for (const MemberInfo& m : Make(row)->Members()) got.push_back(Describe(m));
    EXPECT_EQ(got, want) << row.name;
  }
}

TEST_F(MembersTest, EveryMemberIsFoundByNameInAnyCase) {
  for (const Interface& row : Interfaces()) {
    for (const MemberInfo& m : row.members) {
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
