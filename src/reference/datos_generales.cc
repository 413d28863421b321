#include "zerbal/datos_generales.h"

#include <vector>

#include "base/convert.h"
#include "data/open.h"
#include "data/queries.h"
#include "reference/miscelaneos.h"
#include "reference/t_lec_mdb.h"
#include "reference/t_personalizacion.h"
#include "zerbal/automation.h"

namespace zerbal {

using reference::cTLecMDB;
using reference::cTPersonalizacion;

namespace {

// The course of the lookups: open the lookup database, ask the reader,
// close. No handler: a failure leaves the database open.
template <typename F>
auto Lookup(const std::string& mdblec, int32_t lngIdioma, F&& ask) {
  OpenLookupDatabase(mdblec);
  cTLecMDB reader;
  reader.datTIdioma = lngIdioma;
  auto answer = ask(reader);
  Conexion().Cerrar();
  return answer;
}

template <typename F>
auto Setting(const std::string& mdbmod, F&& work) {
  OpenDataDatabase(mdbmod);
  cTPersonalizacion gateway;
  auto answer = work(gateway);
  Conexion().Cerrar();
  return answer;
}

// The validation component, created for one check and released after it.
bool Check(const char* method, std::vector<Variant> args) {
  auto component = CreateObject(kMiscelaneosProgId);
  return CBool(component->Call(method, args));
}

}  // namespace

bool cDatosGenerales::ValidaNifIntra(const std::string& Cadena, const std::string& strPais) {
  return Check("ValidarForeignNIf", {Cadena, strPais});
}

bool cDatosGenerales::ValidaNifCif(const std::string& Cadena, bool blnSinLetra) {
  return Check("ValidaNifCif", {Cadena, blnSinLetra});
}

int32_t cDatosGenerales::NumeroDeclarantes() {
  OpenDataDatabase(mdbmod_);
  const int32_t count = QueryNumber("Select count(*) From TDeclarante");
  Conexion().Cerrar();
  return count;
}

Variant cDatosGenerales::CargarResultado(const std::string& strCadena) {
  OpenLookupDatabase(mdblec_);
  Variant rows = QueryBuffer(strCadena, 2);
  Conexion().Cerrar();
  return rows;
}

std::string cDatosGenerales::ObtenerDescriVia(const std::string& strCod, int32_t lngIdioma) {
  return Lookup(mdblec_, lngIdioma, [&](cTLecMDB& r) {
    r.datTViaCod = strCod;
    return r.ObtenerDescriVia();
  });
}

std::string cDatosGenerales::ObtenerNombreProvincia(const std::string& strCod, int32_t lngIdioma) {
  return Lookup(mdblec_, lngIdioma, [&](cTLecMDB& r) {
    r.datTProvCod = strCod;
    return r.ObtenerNombreProvincia();
  });
}

std::string cDatosGenerales::ObtenerDesClave(const std::string& strCod,
                                             const std::string& strMoneda, int32_t lngIdioma) {
  return Lookup(mdblec_, lngIdioma, [&](cTLecMDB& r) {
    r.datTClaveCod = strCod;
    r.datTMoneda = strMoneda;
    return r.ObtenerDesClave();
  });
}

Variant cDatosGenerales::ObtenerDescripciones(int32_t lngIdioma) {
  return Lookup(mdblec_, lngIdioma, [](cTLecMDB& r) { return r.ObtenerDescripciones(); });
}

std::string cDatosGenerales::ObtenerDesPais(int32_t lngCodPais, int32_t lngIdioma) {
  return Lookup(mdblec_, lngIdioma, [&](cTLecMDB& r) {
    r.datTPaisCod = CInt(lngCodPais);  // a 16-bit property: above 32,767 overflows
    return r.ObtenerDesPais();
  });
}

std::string cDatosGenerales::ObtenerNombrePaisIntra(const std::string& strCod, int32_t lngIdioma) {
  return Lookup(mdblec_, lngIdioma, [&](cTLecMDB& r) {
    r.datTPaisIntra = strCod;
    return r.ObtenerNombrePaisIntra();
  });
}

std::string cDatosGenerales::RecogerRutaURL(uint8_t btRegistro) {
  return Lookup(mdblec_, 0, [&](cTLecMDB& r) { return r.RecogerRutaURL(btRegistro); });
}

std::string cDatosGenerales::ObtenerURLAct() {
  return Lookup(mdblec_, 0, [](cTLecMDB& r) { return r.URLAct(); });
}

std::string cDatosGenerales::ObtenerIdioma() {
  return Setting(mdbmod_, [](cTPersonalizacion& g) { return g.ObtenerIdioma(); });
}

int16_t cDatosGenerales::ObtenerActOnline() {
  return Setting(mdbmod_, [](cTPersonalizacion& g) { return g.ObtenerActOnline(); });
}

void cDatosGenerales::CambiarIdioma(const std::string& sidioma) {
  Setting(mdbmod_, [&](cTPersonalizacion& g) {
    g.Idioma = sidioma;
    g.GuardarIdioma();
    return true;
  });
}

Variant cDatosGenerales::GuardarActOnline(int16_t intActOnline) {
  Setting(mdbmod_, [&](cTPersonalizacion& g) {
    g.ActOnline = intActOnline;
    g.GuardarActOnline();
    return true;
  });
  return Variant();
}

}  // namespace zerbal
