#include "records/declarante/t_declarante.h"

#include "base/convert.h"
#include "base/raise.h"
#include "data/queries.h"
#include "zerbal/conexion_dao.h"

namespace zerbal::records {
namespace {

const PersonaTable kTable = {
    "TDeclarante",
    {"coddec", "dni_cifd", "nombred", "viad", "domiciliod", "numerod", "letrad", "escalerad",
     "pisod", "manod", "cod", "codpostald", "municipiod", "prefijod", "telefonod", "nombrepd",
     "prefijopd", "telefonopd"},
    "INSERT INTO TDeclarante (dni_cifd,nombred,viad,domiciliod,numerod,letrad,escalerad, "
    "pisod,manod,cod,codpostald,municipiod,prefijod,telefonod,nombrepd,prefijopd,telefonopd "
    ") VALUES ( ",
};

}  // namespace

cTDeclarante::cTDeclarante() : PersonaRow(kTable) {}

bool cTDeclarante::Seleccionar() {
  const int32_t code = CLng(Get(kCodigo));
  if (code <= 0) return false;
  Recordset rs =
      Conexion().openRecordset("SELECT * FROM TDeclarante WHERE coddec = " + std::to_string(code));
  Load(rs, false);  // no test for a missing row: it raises "no current record"
  rs.Close();
  return true;
}

int32_t cTDeclarante::MaxDeclarante() {
  return QueryNumber("SELECT MAX(coddec) FROM tdeclarante ");
}

Variant cTDeclarante::ObtenerDeclarantes() {
  return WithPrefix("cTDeclarante.ObtenerDeclarantes ", [] {
    return QueryBuffer("Select coddec, dni_cifd, nombred From TDeclarante order by dni_cifd asc", 2);
  });
}

Variant cTDeclarante::ObtenerUltimosDeclarantes() {
  return WithPrefix("cTDeclarante.ObtenerUltimosDeclarantes ", [] {
    return QueryBuffer("Select TOP 4 coddec, dni_cifd, nombred From TDeclarante order by coddec desc",
                       2);
  });
}

int32_t cTDeclarante::ExisteNif() {
  const std::string nif = CStr(Get(kDniCif));
  if (nif.empty()) return 0;
  return QueryNumber("Select coddec From TDeclarante Where dni_cifd like '" + nif + "*'");
}

}  // namespace zerbal::records
