#include "reference/t_lec_mdb.h"

#include "base/convert.h"
#include "data/queries.h"
#include "zerbal/conexion_dao.h"

namespace zerbal::reference {
namespace {

// The first column of the first row, upper-cased; "" for no row.
std::string Description(const std::string& sql) {
  const Variant first = QueryFirst(sql, "");
  return UCase(CStr(first));
}

}  // namespace

std::string cTLecMDB::ObtenerDesClave() {
  return Description(std::string("SELECT ") + (Spanish() ? "descripcionc" : "descripcione") +
                     " FROM TOperaciones WHERE codigo = '" + datTClaveCod + "'");
}

std::string cTLecMDB::ObtenerNombreProvincia() {
  return Description(std::string("SELECT ") + (Spanish() ? "PRO_CAS" : "PRO_EUS") +
                     " FROM TPROVINCIAS WHERE PRO_ID = '" + datTProvCod + "'");
}

std::string cTLecMDB::ObtenerDescriVia() {
  return Description(std::string("SELECT ") + (Spanish() ? "CAS" : "EUS") +
                     " FROM TSIGLASVIA WHERE codigo='" + datTViaCod + "'");
}

std::string cTLecMDB::ObtenerDesPais() {
  return Description(std::string("SELECT ") + (Spanish() ? "PAISCAS" : "PAISEUS") +
                     " FROM TPaises WHERE codigo=" + std::to_string(datTPaisCod));
}

std::string cTLecMDB::ObtenerNombrePaisIntra() {
  return Description(std::string("Select  ") + (Spanish() ? "PAIS" : "paiseus") +
                     " From TSiglasPais WHERE SIGLASPAIS = '" + datTPaisIntra + "'");
}

Variant cTLecMDB::ObtenerDescripciones() {
  return QueryBuffer(std::string("SELECT codigo, ") +
                         (Spanish() ? "descripcionc" : "descripcione") + " FROM TOperaciones",
                     2);
}

std::string cTLecMDB::RecogerRutaURL(uint8_t btRegistro) {
  Recordset rs = Conexion().openRecordset("select * from tgeneral");
  if (btRegistro != 1) rs.MoveNext();
  const std::string address = CStr(rs.Fields(0).Value());
  rs.Close();
  return address;
}

std::string cTLecMDB::URLAct() {
  return CStr(QueryFirst("select URLAct from tgeneral", ""));
}

}  // namespace zerbal::reference
