#include "zerbal/timpexp.h"

#include "base/raise.h"
#include "data/queries.h"
#include "zerbal/conexion_dao.h"

namespace zerbal {

Variant cTImpExp::ObtenerDeclarantes(int32_t lngEjercicio, const std::string& strMoneda) {
  return WithPrefix("cTImpExp.ObtenerDeclarantes ", [&] {
    return QueryBuffer(
        "SELECT coddec, dni_cifd, nombred FROM tdeclarante, tdeclaraciones WHERE "
        "tdeclarante.coddec=tdeclaraciones.coddecr AND ejercicio=" +
            std::to_string(lngEjercicio) + " AND moneda='" + strMoneda +
            "' ORDER BY  dni_cifd  ",
        2);
  });
}

int32_t cTImpExp::TotalDeclarados(int32_t lngEjercicio, const std::string& strMoneda,
                                  const std::string& strDtes) {
  return WithPrefix("cTImpExp.TotalDeclarados ", [&] {
    const std::string year = std::to_string(lngEjercicio);
    Recordset rs = Conexion().openRecordset(
        "SELECT codope from tOperadores where coddeclar in (select coddecla from tdeclaraciones "
        "where coddecr in (" + strDtes + ") and ejercicio = " + year + " and moneda = '" +
        strMoneda + "')" +
        "union select codarr from tarrendamientos where coddeclar in (select coddecla from "
        "tdeclaraciones where coddecr in (" + strDtes + ") and ejercicio = " + year +
        " and moneda =  '" + strMoneda + "' ) ");
    const int32_t count = rs.RecordCount();
    rs.Close();
    return count;
  });
}

}  // namespace zerbal
