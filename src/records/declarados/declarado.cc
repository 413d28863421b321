#include "zerbal/declarado.h"

#include "base/convert.h"
#include "base/raise.h"
#include "data/open.h"
#include "records/declarados/t_declarados.h"

namespace zerbal {

using records::cTDeclarados;

namespace {

// A list of declaration `code`, by the gateway's query `list`.
Variant List(std::string_view prefix, const std::string& mdbmod, int32_t code,
             Variant (cTDeclarados::*list)()) {
  return InDataDatabase(prefix, mdbmod, [&] {
    cTDeclarados gateway;
    gateway.Let(cTDeclarados::coddeclar, code);
    return (gateway.*list)();
  });
}

}  // namespace

bool cDeclarado::DeclaradosCoincidentes(const std::string& strCodDecl, const std::string& strNif,
                                        const std::string& strClaveOp,
                                        const std::string& strOptArr,
                                        const std::string& strOptSeg,
                                        const std::string& strOptRep, int32_t lngCodOpe,
                                        int32_t lngEjerImp, const std::string& opeivacaja,
                                        const std::string& opeinvsujpas,
                                        const std::string& operegposadu) {
  return InDataDatabase("cdeclarado.DeclaradosCoincidentes ", mdbmod_, [&] {
    cTDeclarados g;
    g.Let(cTDeclarados::codope, lngCodOpe);
    g.Let(cTDeclarados::coddeclar, strCodDecl);
    g.Let(cTDeclarados::nifo, strNif);
    g.Let(cTDeclarados::claveopo, strClaveOp);
    g.Let(cTDeclarados::opearr, strOptArr);
    g.Let(cTDeclarados::opeseg, strOptSeg);
    g.Let(cTDeclarados::claverep, strOptRep);
    g.Let(cTDeclarados::ejerimp, lngEjerImp);
    g.Let(cTDeclarados::opeivacaja, opeivacaja);
    g.Let(cTDeclarados::opeinvsujpas, opeinvsujpas);
    g.Let(cTDeclarados::operegposadu, operegposadu);
    return g.DeclaradosCoincidentes();
  });
}

int32_t cDeclarado::GuardarDeclarado(const Variant& vBufferResultado) {
  OpenDataDatabase(mdbmod_);
  cTDeclarados gateway;
  gateway.FromBuffer(vBufferResultado, cTDeclarados::kRecord);
  if (CLng(gateway.Get(cTDeclarados::codope)) != 0) {
    gateway.Let(cTDeclarados::codope, vBufferResultado(0));
    gateway.Modificar();
    return CLng(vBufferResultado(0));
  }
  gateway.Insertar();
  return gateway.MaxDeclarado();
}

Variant cDeclarado::ObtenerDeclarados(int32_t lngDeclaracion) {
  return List("cdeclarado.ObtenerDeclarados ", mdbmod_, lngDeclaracion,
              &cTDeclarados::ObtenerDeclarados);
}

Variant cDeclarado::ObtenerDeclaradosOpe(int32_t lngDeclaracion) {
  return List("cdeclarado.ObtenerDeclaradosOpe ", mdbmod_, lngDeclaracion,
              &cTDeclarados::ObtenerDeclaradosOpe);
}

Variant cDeclarado::ObtenerDeclaradosSinValoresEnCamposNuevos2014(int32_t lngDeclaracion) {
  return List("cdeclarado.ObtenerDeclaradosSinValoresEnCamposNuevos2014 ", mdbmod_, lngDeclaracion,
              &cTDeclarados::ObtenerDeclaradosOpe);
}

Variant cDeclarado::CargarDeclarado(int32_t lngDeclarado) {
  return InDataDatabase("cdeclarado.CargarDeclarado ", mdbmod_, [&] {
    cTDeclarados gateway;
    gateway.Let(cTDeclarados::codope, lngDeclarado);
    return gateway.CargarDeclarado();
  });
}

void cDeclarado::EliminarDeclarado(int32_t lngDeclarado) {
  InDataDatabase("clDeclarados.EliminarDeclarado ", mdbmod_, [&] {
    cTDeclarados gateway;
    gateway.Let(cTDeclarados::codope, lngDeclarado);
    return gateway.EliminarDeclarado();
  });
}

bool cDeclarado::SeImportanTodos(int32_t lngDeclaracion) {
  const int16_t code = CInt(lngDeclaracion);
  return InDataDatabase("clDeclarados.SeImportanTodos ", mdbmod_,
                        [&] { return cTDeclarados().SeImportanTodos(code); });
}

}  // namespace zerbal
