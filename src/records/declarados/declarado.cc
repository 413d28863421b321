#include "zerbal/declarado.h"

#include "base/convert.h"
#include "base/raise.h"
#include "data/open.h"
#include "records/declarados/t_declarados.h"

namespace zerbal {

using records::cTDeclarados;

namespace {

// Opens the data database, runs `body` on a new gateway and closes.
template <typename F>
auto OnGateway(const std::string& mdbmod, F&& body) {
  OpenDataDatabase(mdbmod);
  cTDeclarados gateway;
  auto result = body(gateway);
  Conexion().Cerrar();
  return result;
}

// A list of declaration `code`, by the gateway's query `list`.
Variant List(const std::string& mdbmod, int32_t code, Variant (cTDeclarados::*list)()) {
  return OnGateway(mdbmod, [&](cTDeclarados& gateway) {
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
  return WithPrefix("cdeclarado.DeclaradosCoincidentes ", [&] {
    return OnGateway(mdbmod_, [&](cTDeclarados& g) {
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
  return WithPrefix("cdeclarado.ObtenerDeclarados ", [&] {
    return List(mdbmod_, lngDeclaracion, &cTDeclarados::ObtenerDeclarados);
  });
}

Variant cDeclarado::ObtenerDeclaradosOpe(int32_t lngDeclaracion) {
  return WithPrefix("cdeclarado.ObtenerDeclaradosOpe ", [&] {
    return List(mdbmod_, lngDeclaracion, &cTDeclarados::ObtenerDeclaradosOpe);
  });
}

Variant cDeclarado::ObtenerDeclaradosSinValoresEnCamposNuevos2014(int32_t lngDeclaracion) {
  return WithPrefix("cdeclarado.ObtenerDeclaradosSinValoresEnCamposNuevos2014 ", [&] {
    return List(mdbmod_, lngDeclaracion, &cTDeclarados::ObtenerDeclaradosOpe);
  });
}

Variant cDeclarado::CargarDeclarado(int32_t lngDeclarado) {
  return WithPrefix("cdeclarado.CargarDeclarado ", [&] {
    return OnGateway(mdbmod_, [&](cTDeclarados& gateway) {
      gateway.Let(cTDeclarados::codope, lngDeclarado);
      return gateway.CargarDeclarado();
    });
  });
}

void cDeclarado::EliminarDeclarado(int32_t lngDeclarado) {
  WithPrefix("clDeclarados.EliminarDeclarado ", [&] {
    return OnGateway(mdbmod_, [&](cTDeclarados& gateway) {
      gateway.Let(cTDeclarados::codope, lngDeclarado);
      return gateway.EliminarDeclarado();
    });
  });
}

bool cDeclarado::SeImportanTodos(int16_t lngDeclaracion) {
  return WithPrefix("clDeclarados.SeImportanTodos ", [&] {
    return OnGateway(mdbmod_,
                     [&](cTDeclarados& gateway) { return gateway.SeImportanTodos(lngDeclaracion); });
  });
}

}  // namespace zerbal
