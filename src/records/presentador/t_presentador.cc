#include "records/presentador/t_presentador.h"

#include "base/convert.h"
#include "data/queries.h"
#include "zerbal/conexion_dao.h"

namespace zerbal::records {
namespace {

const PersonaTable kTable = {
    "TPresentador",
    {"codpres", "dni_cif", "nombre", "via", "domicilio", "numero", "letra", "escalera", "piso",
     "mano", "cod", "codpostal", "municipio", "prefijo", "telefono", "nombrep", "prefijop",
     "telefonop"},
    "INSERT INTO TPresentador (dni_cif,nombre,via,domicilio,numero,letra,escalera, "
    "piso,mano,cod,codpostal,municipio,prefijo,telefono,nombrep,prefijop,telefonop "
    ") VALUES ( ",
};

}  // namespace

cTPresentador::cTPresentador() : PersonaRow(kTable) {}

bool cTPresentador::Seleccionar() {
  Recordset rs = Conexion().openRecordset("SELECT * FROM TPresentador");
  if (rs.Eof()) return false;
  Load(rs, true);
  rs.Close();
  return true;
}

int32_t cTPresentador::ExisteNif() {
  const std::string nif = CStr(Get(kDniCif));
  if (nif.empty()) return 0;
  return QueryNumber("Select codpres From TPresentador Where dni_cif='" + nif + "'");
}

int32_t cTPresentador::MaxPresentador() {
  return QueryNumber("SELECT MAX(codpres) FROM TPresentador ");
}

}  // namespace zerbal::records
