#include "records/declaraciones/t_declaraciones.h"

#include "base/convert.h"
#include "base/raise.h"
#include "data/queries.h"
#include "records/arrendamientos/t_arrendamientos.h"
#include "records/declarados/t_declarados.h"
#include "zerbal/conexion_dao.h"

namespace zerbal::records {
namespace {

std::string Text(int32_t n) { return std::to_string(n); }

// A count as the 16-bit integer the list holds (more than 32,767 raises 6).
int16_t Count(const std::string& sql) {
  const Variant count = QueryFirst(sql);
  return count.IsEmpty() ? 0 : CInt(count);
}

}  // namespace

Variant cTDeclaraciones::ObtenerDeclaraciones(int32_t coddecr) {
  return WithPrefix("cTDeclaraciones.ObtenerDeclaraciones ", [&] {
    Recordset rs = Conexion().openRecordset(
        "Select tdeclaraciones.coddecla,  tdeclaraciones.ejercicio, tdeclaraciones.moneda "
        "from tdeclaraciones WHERE coddecr = " +
        Text(coddecr) + " order by tdeclaraciones.ejercicio");
    Variant list(Array(0, 5, 0, 0));
    for (int16_t k = 1; !rs.Eof(); rs.MoveNext()) {
      list.AsArray().ReDimPreserve(k);
      for (int32_t c = 0; c <= 2; ++c) list(c, k) = rs.Fields(c).Value();
      const int32_t code = CLng(rs.Fields(0).Value());
      list(3, k) = ContarDeclarados(code);
      list(4, k) = ContarArrendamientos(code);
      if (k == INT16_MAX) Raise(errc::kOverflow);  // the row counter is 16-bit
      ++k;
    }
    rs.Close();
    return list.AsArray().UBound(2) < 1 ? Variant::Null() : list;
  });
}

int16_t cTDeclaraciones::ContarDeclarados(int32_t code) {
  return WithPrefix("cTDeclaraciones.ContarDeclarados ", [&] {
    return Count("Select  count(coddeclar) as declarados from tOperadores WHERE coddeclar = " +
                 Text(code));
  });
}

int16_t cTDeclaraciones::ContarArrendamientos(int32_t code) {
  return WithPrefix("cTDeclaraciones.ContarArrendamientos ", [&] {
    return Count(
        "Select  count(coddeclar) as Arrendamientos from tArrendamientos WHERE coddeclar = " +
        Text(code));
  });
}

int32_t cTDeclaraciones::ObtenerDeclaracion() {
  return WithPrefix("cTDeclaraciones.ObtenerDeclaracion ", [&] {
    return QueryNumber("Select coddecla from tdeclaraciones WHERE coddecr = " +
                       Text(datTDeclaraciones_CodDecr) +
                       " and ejercicio = " + Text(datTDeclaraciones_Ejercicio));
  });
}

int32_t cTDeclaraciones::Insertar() {
  Conexion().execute("INSERT INTO TDeclaraciones ( coddecr, ejercicio, moneda ) VALUES ( " +
                     Text(datTDeclaraciones_CodDecr) + ", " + Text(datTDeclaraciones_Ejercicio) +
                     ", " + "'" + datTDeclaraciones_Moneda + "')");
  return Seleccion_MAX();
}

int32_t cTDeclaraciones::DuplicarDeclaracion() {
  Conexion().execute(
      "insert into tDeclaraciones  select coddecr,ejercicio,moneda from tDeclaraciones where "
      "coddecla = " +
      Text(datTDeclaraciones_CodDecla));
  const int32_t created = Seleccion_MAX();
  Conexion().execute("Update tDeclaraciones set ejercicio = " + Text(datTDeclaraciones_Ejercicio) +
                     " , moneda = '" + datTDeclaraciones_Moneda +
                     "' Where coddecla = " + Text(created));
  return created;
}

void cTDeclaraciones::BorrarDeclaracion(int32_t code) {
  cTDeclarados().Borrar(code);
  cTArrendamientos().Borrar(code);
  Conexion().execute("DELETE FROM TDeclaraciones WHERE coddecla = " + Text(code));
}

bool cTDeclaraciones::Borrar() {
  BorrarDeclaracion(datTDeclaraciones_CodDecla);
  return true;
}

bool cTDeclaraciones::BorrarTodas(int32_t coddecr) {
  const Variant list = ObtenerDeclaraciones(coddecr);
  if (list.IsNull()) return true;
  for (int32_t k = 1; k <= list.AsArray().UBound(2); ++k) BorrarDeclaracion(CLng(list(0, k)));
  return true;
}

int32_t cTDeclaraciones::Seleccion_MAX() {
  SQL_MAX = "SELECT MAX(coddecla) FROM TDeclaraciones ";
  return QueryNumber(SQL_MAX);
}

Variant cTDeclaraciones::MaxEjerMon(bool blnSoloEuros, int16_t intEjerMin) {
  std::string sql = "SELECT distinct top 1 ejercicio, moneda FROM tdeclaraciones order by ejercicio desc";
  if (blnSoloEuros) {
    // The lowest year only chooses the query: the bound is always 2002.
    sql = intEjerMin > 0 ? "SELECT distinct top 1 ejercicio, moneda FROM tdeclaraciones where "
                           "moneda ='E' and ejercicio >= 2002 order by ejercicio desc"
                         : "SELECT distinct top 1 ejercicio, moneda FROM tdeclaraciones where "
                           "moneda ='E' order by ejercicio desc";
  }
  return QueryBuffer(sql, 2);
}

std::string cTDeclaraciones::ObtenerMonedaDcion() {
  Recordset rs = Conexion().openRecordset("Select moneda from tdeclaraciones where  coddecla = " +
                                          Text(datTDeclaraciones_CodDecla));
  return CStr(rs.Fields(0).Value());  // no row: "no current record"
}

int32_t cTDeclaraciones::ObtenerEjercicio() {
  Recordset rs = Conexion().openRecordset("Select ejercicio from tdeclaraciones where  coddecla = " +
                                          Text(datTDeclaraciones_CodDecla));
  return CLng(rs.Fields(0).Value());
}

}  // namespace zerbal::records
