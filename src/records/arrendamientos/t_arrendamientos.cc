#include "records/arrendamientos/t_arrendamientos.h"

#include <string>

#include "base/convert.h"
#include "base/raise.h"
#include "data/queries.h"
#include "zerbal/conexion_dao.h"

namespace zerbal::records {
namespace {

using T = cTArrendamientos;

constexpr Column kColumns[T::kSlots] = {
    {"codarr", Kind::kLong},
    {"coddeclar", Kind::kLong},
    {"prova", Kind::kLong},
    {"provi", Kind::kLong},
    {"paiso", Kind::kText, Rule::kAsGiven},
    {"nifa", Kind::kText, Rule::kBlank},
    {"razon", Kind::kText, Rule::kBlankProtected},
    {"importe", Kind::kDouble},
    {"municipioa", Kind::kText, Rule::kBlankProtected},
    {"refcat", Kind::kText, Rule::kBlankProtected},
    {"viaa", Kind::kText, Rule::kBlankProtected},
    {"domicilioa", Kind::kText, Rule::kBlankProtected},
    {"numeroa", Kind::kLong},
    {"escaleraa", Kind::kText, Rule::kBlankProtected},
    {"pisoa", Kind::kText, Rule::kBlankProtected},
    {"puertaa", Kind::kText, Rule::kBlankProtected},
};

constexpr std::string_view kInsertar =
    "INSERT INTO TArrendamientos (coddeclar, provi, paiso, nifa, razon, importe, municipioa, "
    "refcat, viaa,domicilioa,numeroa,escaleraa,pisoa,puertaa,prova)  VALUES ( {coddeclar}, "
    "{provi}, '{paiso}','{nifa}', '{razon}', {importe}, '{municipioa}','{refcat}','{viaa}',"
    "'{domicilioa}', {numeroa},'{escaleraa}','{pisoa}','{puertaa}',{prova})";

constexpr std::string_view kModificar =
    "UPDATE TArrendamientos SET coddeclar={coddeclar},provi={provi}, paiso='{paiso}', "
    "nifa='{nifa}',razon='{razon}', Importe={importe}, municipioa='{municipioa}', "
    "refcat='{refcat}', viaa='{viaa}', domicilioa ='{domicilioa}', numeroa={numeroa},"
    "escaleraa ='{escaleraa}',pisoa ='{pisoa}', puertaa='{puertaa}',  prova={prova} "
    "WHERE codarr = {codarr}";

constexpr std::string_view kObtenerArrendamientos =
    "Select codarr,nifa, razon, municipioa, importe from tArrendamientos WHERE coddeclar = "
    "{coddeclar} Order by codarr";

constexpr std::string_view kObtenerTodosLosArr =
    "Select codarr, coddeclar, provi,paiso,nifa,razon,importe,municipioa,refcat,viaa,"
    "domicilioa,numeroa,escaleraa,pisoa,puertaa from tArrendamientos WHERE coddeclar = "
    "{coddeclar} Order by razon";

constexpr std::string_view kCargarArrendamiento =
    "Select coddeclar,provi,paiso,nifa,razon,importe,municipioa,refcat,viaa,domicilioa,numeroa,"
    "escaleraa,pisoa,puertaa,prova from tArrendamientos WHERE codarr = {codarr}";

}  // namespace

const std::array<int, T::kSlots> cTArrendamientos::kRecord = {
    codarr,     coddeclar, prova,   paiso,     nifa,  razon,   importe, municipioa,
    refcat,     viaa,      domicilioa, numeroa, escaleraa, pisoa, puertaa, provi,
};

cTArrendamientos::cTArrendamientos() : TableRow(kColumns) {}

bool cTArrendamientos::Borrar(int32_t lngCodDecla) {
  Conexion().execute("DELETE FROM TArrendamientos WHERE coddeclar = " +
                     std::to_string(lngCodDecla));
  return true;
}

Variant cTArrendamientos::CargarArrendamiento() {
  return WithPrefix("cTArrendamientos.CargarArrendamiento ",
                    [&] { return QueryBuffer(Sql(kCargarArrendamiento), 0); });
}

Variant cTArrendamientos::ObtenerArrendamientos() {
  return WithPrefix("cTArrendamientos.ObtenerArrendamientos ",
                    [&] { return QueryBuffer(Sql(kObtenerArrendamientos), 2); });
}

Variant cTArrendamientos::ObtenerTodosLosArr() {
  return WithPrefix("cTArrendamientos.ObtenerTodosLosArr ",
                    [&] { return QueryBuffer(Sql(kObtenerTodosLosArr), 2); });
}

bool cTArrendamientos::Insertar() {
  Conexion().execute(Sql(kInsertar));
  return true;
}

int32_t cTArrendamientos::MaxArrendamiento() {
  return QueryNumber("SELECT MAX(codArr) FROM tArrendamientos ");
}

bool cTArrendamientos::Modificar() {
  if (CLng(Get(codarr)) < 1) return false;
  Conexion().execute(Sql(kModificar));
  return true;
}

bool cTArrendamientos::EliminarArrendamiento() {
  Conexion().execute(Sql("DELETE FROM TArrendamientos WHERE codarr = {codarr}"));
  return true;
}

int16_t cTArrendamientos::ObtenerTotalArrendamientos() {
  return CInt(QueryFirst(Sql("SELECT Count(codarr) FROM tarrendamientos WHERE coddeclar="
                             "{coddeclar}")));
}

}  // namespace zerbal::records
