#include "records/declarados/t_declarados.h"

#include <string>

#include "base/convert.h"
#include "base/raise.h"
#include "data/queries.h"
#include "zerbal/conexion_dao.h"

namespace zerbal::records {
namespace {

using T = cTDeclarados;

constexpr Column kColumns[T::kSlots] = {
    {"codope", Kind::kLong},
    {"coddeclar", Kind::kLong},
    {"provo", Kind::kLong},
    {"paiso", Kind::kText, Rule::kAsGiven},
    {"nifo", Kind::kText, Rule::kBlank},
    {"razon", Kind::kText, Rule::kBlankProtected},
    {"claveopo", Kind::kText, Rule::kBlank},
    {"importe", Kind::kDouble},
    {"impopeT1", Kind::kDouble},
    {"impopeT2", Kind::kDouble},
    {"impopeT3", Kind::kDouble},
    {"impopeT4", Kind::kDouble},
    {"impmet", Kind::kDouble},
    {"impinm", Kind::kDouble},
    {"impanudevopecaj", Kind::kDouble},
    {"impmobT1", Kind::kDouble},
    {"impmobT2", Kind::kDouble},
    {"impmobT3", Kind::kDouble},
    {"impmobT4", Kind::kDouble},
    {"ejerimp", Kind::kLong},
    {"claverep", Kind::kText, Rule::kBlank},
    {"opeseg", Kind::kText, Rule::kBlank},
    {"opearr", Kind::kText, Rule::kBlank},
    {"siglaspaisintra", Kind::kText, Rule::kBlank},
    {"nifpaisintra", Kind::kText, Rule::kBlank},
    {"opeivacaja", Kind::kText, Rule::kBlank},
    {"opeinvsujpas", Kind::kText, Rule::kBlank},
    {"operegposadu", Kind::kText, Rule::kBlank},
};

// The insert quotes the quarterly amounts, ejerimpmet and impanudevopecaj
// (the engine converts them); the update lists its columns in its own order.
constexpr std::string_view kInsertar =
    "INSERT INTO tOperadores (coddeclar, provo, paiso, nifo, razon, claveopo, importe, impmet, "
    "impinm, claverep, opeseg, opearr, impopeT1, impopeT2, impopeT3, impopeT4, "
    "impmobT1,impmobT2,impmobT3,impmobT4, ejerimpmet, siglaspaisintra,nifpaisintra, opeivacaja, "
    "opeinvsujpas, operegposadu, impanudevopecaj)  VALUES ( "
    "{coddeclar}, {provo}, '{paiso}', '{nifo}', '{razon}', '{claveopo}', {importe}, {impmet}, "
    "{impinm}, '{claverep}', '{opeseg}', '{opearr}','{impopeT1}','{impopeT2}','{impopeT3}',"
    "'{impopeT4}','{impmobT1}','{impmobT2}','{impmobT3}','{impmobT4}','{ejerimp}',"
    "'{siglaspaisintra}','{nifpaisintra}','{opeivacaja}','{opeinvsujpas}','{operegposadu}',"
    "'{impanudevopecaj}')";

constexpr std::string_view kModificar =
    "UPDATE tOperadores SET coddeclar={coddeclar}, provo={provo}, paiso='{paiso}', "
    "nifo='{nifo}', razon='{razon}', claveopo='{claveopo}', importe={importe}, "
    "impmet={impmet}, impinm={impinm}, impanudevopecaj={impanudevopecaj}, "
    "claverep='{claverep}', opeseg='{opeseg}', opearr='{opearr}', "
    "siglaspaisintra='{siglaspaisintra}', nifpaisintra='{nifpaisintra}', "
    "opeivacaja='{opeivacaja}', opeinvsujpas='{opeinvsujpas}', operegposadu='{operegposadu}', "
    "impopeT1='{impopeT1}', impopeT2='{impopeT2}', impopeT3='{impopeT3}', impopeT4='{impopeT4}', "
    "impmobT1='{impmobT1}', impmobT2='{impmobT2}', impmobT3='{impmobT3}', impmobT4='{impmobT4}', "
    "ejerimpmet='{ejerimp}' WHERE codope = {codope}";

constexpr std::string_view kCoincidentes =
    "Select 1 From tOperadores Where coddeclar={coddeclar} And nifo='{nifo}' And "
    "claveopo='{claveopo}' And opearr='{opearr}' AND opeseg =  '{opeseg}' AND claverep =  "
    "'{claverep}' and  ejerimpmet = {ejerimp} and codope <> {codope} and "
    "opeivacaja='{opeivacaja}' and opeinvsujpas='{opeinvsujpas}' and "
    "operegposadu='{operegposadu}'";

constexpr std::string_view kObtenerDeclarados =
    "Select codope,  nifo, razon  , claveopo, importe from tOperadores WHERE coddeclar = "
    "{coddeclar} Order by codope";

constexpr std::string_view kObtenerDeclaradosOpe =
    "SELECT codope,coddeclar,provo,paiso,nifo,razon,claveopo,importe,claverep,opeseg,opearr,"
    "impmet,impinm,impopeT1, impopeT2, impopeT3, impopeT4, impmobT1,impmobT2,impmobT3,impmobT4, "
    "ejerimpmet,siglaspaisintra, nifpaisintra, opeivacaja , opeinvsujpas , operegposadu, "
    "impanudevopecaj   FROM toperadores WHERE coddeclar={coddeclar}";

constexpr std::string_view kCargarDeclarado =
    "Select coddeclar,provo,paiso,  nifo, razon  , claveopo, importe, impmet, impinm, claverep, "
    "opeseg, opearr, impopet1, impopet2, impopet3, impopet4, impmobt1 , impmobt2, impmobt3, "
    "impmobt4, ejerimpmet,siglaspaisintra, nifpaisintra, opeivacaja , opeinvsujpas , "
    "operegposadu , impanudevopecaj from tOperadores WHERE codope = {codope}";

constexpr std::string_view kTotalOperaciones =
    "SELECT claveopo, Sum(importe),Count(codope) FROM tOperadores WHERE coddeclar={coddeclar} "
    "group by claveopo";

}  // namespace

const std::array<int, T::kSlots> cTDeclarados::kRecord = {
    codope,   coddeclar, provo,    paiso,    nifo,     razon,    claveopo,
    importe,  impmet,    impinm,   claverep, opeseg,   opearr,   impopeT1,
    impopeT2, impopeT3,  impopeT4, impmobT1, impmobT2, impmobT3, impmobT4,
    ejerimp,  siglaspaisintra, nifpaisintra, opeivacaja, opeinvsujpas, operegposadu,
    impanudevopecaj,
};

cTDeclarados::cTDeclarados() : TableRow(kColumns) {}

bool cTDeclarados::Borrar(int32_t lngCodDecla) {
  Conexion().execute("DELETE FROM tOperadores WHERE coddeclar = " + std::to_string(lngCodDecla));
  return true;
}

bool cTDeclarados::DeclaradosCoincidentes() {
  return !QueryBuffer(Sql(kCoincidentes), 1).IsNull();
}

bool cTDeclarados::Insertar() {
  Conexion().execute(Sql(kInsertar));
  return true;
}

int32_t cTDeclarados::MaxDeclarado() { return QueryNumber("SELECT MAX(codope) FROM tOperadores "); }

bool cTDeclarados::Modificar() {
  if (CLng(Get(codope)) < 1) return false;
  Conexion().execute(Sql(kModificar));
  return true;
}

Variant cTDeclarados::ObtenerDeclarados() {
  return WithPrefix("cTDeclarados.ObtenerDeclarados ",
                    [&] { return QueryBuffer(Sql(kObtenerDeclarados), 2); });
}

Variant cTDeclarados::ObtenerDeclaradosOpe() {
  return WithPrefix("cTDeclarados.ObtenerDeclaradosOpe ",
                    [&] { return QueryBuffer(Sql(kObtenerDeclaradosOpe), 2); });
}

Variant cTDeclarados::CargarDeclarado() {
  return WithPrefix("cTDeclarados.CargarDeclarado ",
                    [&] { return QueryBuffer(Sql(kCargarDeclarado), 0); });
}

bool cTDeclarados::EliminarDeclarado() {
  Conexion().execute(Sql("DELETE FROM tOperadores WHERE codope = {codope}"));
  return true;
}

bool cTDeclarados::SeImportanTodos(int16_t intCodDecla) {
  // The alternative is not bound to the declaration: a value in a 2014
  // column anywhere makes the answer true.
  return QueryNumber("select count(*) FROM tOperadores WHERE coddeclar = " +
                     std::to_string(intCodDecla) +
                     " or (trim(opeivacaja) <> '' or trim(siglaspaisintra) <> '' or "
                     "trim(opeinvsujpas) <> '' or trim(operegposadu) <> '' or "
                     "impanudevopecaj >0)") > 0;
}

Variant cTDeclarados::ObtenerTotalOperaciones() { return QueryBuffer(Sql(kTotalOperaciones), 2); }

Variant cTDeclarados::ObtenerTotalDeclaradosVarDtes(const Variant& vBuffer, int32_t lngEjercicio) {
  std::string codes;
  for (int32_t i = 0; i <= vBuffer.AsArray().UBound(); ++i) {
    codes += std::to_string(CLng(vBuffer(i))) + ",";
  }
  // The list is closed by dropping its last comma, which an empty list lacks.
  if (codes.empty()) Raise(errc::kInvalidProcedureCall, "no declarants");
  codes.pop_back();
  return QueryBuffer(
      "SELECT claveopo, Sum(importe),Count(codope) FROM (tdeclarante INNER JOIN "
      "tdeclaraciones ON tdeclarante.coddec = tdeclaraciones.coddecr ) "
      "INNER JOIN tOperadores ON tdeclaraciones.coddecla = tOperadores.coddeclar "
      "where tdeclarante.coddec in (" +
          codes + ") and tdeclaraciones.ejercicio = " + std::to_string(lngEjercicio) +
          " group by claveopo",
      2);
}

}  // namespace zerbal::records
