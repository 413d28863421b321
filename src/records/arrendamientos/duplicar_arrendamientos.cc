// The copy of a declaration's rentals into a declaration of another year:
// every row is copied as it is, except the country code, which takes the
// form of the destination year (numeric before 2008, two letters after).

#include <span>
#include <string>

#include "base/convert.h"
#include "records/arrendamientos/t_arrendamientos.h"
#include "records/declarados/pais.h"
#include "zerbal/conexion_dao.h"

namespace zerbal::records {
namespace {

using T = cTArrendamientos;

constexpr std::string_view kOrigen =
    "select provi, paiso,nifa,razon,importe,municipioa,refcat,viaa,domicilioa,numeroa,escaleraa,"
    "pisoa,puertaa, prova from tArrendamientos where coddeclar = ";

// The columns of kOrigen, in its order.
constexpr int kLeidas[] = {T::provi,      T::paiso,   T::nifa,      T::razon, T::importe,
                           T::municipioa, T::refcat,  T::viaa,      T::domicilioa,
                           T::numeroa,    T::escaleraa, T::pisoa,   T::puertaa, T::prova};

// Texts go in as read: they already hold "´" for an apostrophe.
constexpr std::string_view kCopia =
    "Insert into tArrendamientos (coddeclar,provi, paiso,nifa,razon,importe,municipioa,refcat,"
    "viaa,domicilioa,numeroa,escaleraa,pisoa,puertaa,prova) values ({coddeclar},'{provi}',"
    "'{paiso}','{nifa}','{razon}',{importe},'{municipioa}','{refcat}','{viaa}','{domicilioa}',"
    "{numeroa},'{escaleraa}','{pisoa}','{puertaa}',{prova})";

}  // namespace

void cTArrendamientos::DuplicarArrendamientos(int32_t lngDestino, int32_t lngOrigen,
                                              int32_t lngEjerDes) {
  Recordset rs = Conexion().openRecordset(std::string(kOrigen) + std::to_string(lngOrigen) +
                                          " Order by codarr");
  for (; !rs.Eof(); rs.MoveNext()) {
    FromRecord(rs, kLeidas);
    Store(coddeclar, lngDestino);
    const std::string code = CStr(Get(paiso));
    Store(paiso, lngEjerDes < 2008 ? PaisNumerico(code) : PaisDosLetras(code));
    Conexion().execute(Sql(kCopia));
  }
  rs.Close();
}

}  // namespace zerbal::records
