#include "zerbal/declaraciones.h"

#include "base/convert.h"
#include "base/raise.h"
#include "data/open.h"
#include "records/arrendamientos/t_arrendamientos.h"
#include "records/declaraciones/t_declaraciones.h"
#include "records/declarados/t_declarados.h"

namespace zerbal {

using records::cTDeclaraciones;

Variant cDeclaraciones::ObtenerDeclaraciones(int32_t lngDeclarante) {
  return InDataDatabase("cDatosGeneralT.ObtenerDeclaraciones ", mdbmod_,
                 [&] { return cTDeclaraciones().ObtenerDeclaraciones(lngDeclarante); });
}

void cDeclaraciones::EliminarDeclaracion(int32_t lngDeclaracion) {
  OpenDataDatabase(mdbmod_);
  cTDeclaraciones gateway;
  gateway.datTDeclaraciones_CodDecla = lngDeclaracion;
  gateway.Borrar();
}

int32_t cDeclaraciones::DuplicarDeclaracion(int32_t lngEjerOrg, int32_t lngEjerDes,
                                            const std::string& strMoneda,
                                            int32_t lngCodDeclaOrigen) {
  cTDeclaraciones gateway;
  gateway.datTDeclaraciones_CodDecla = lngCodDeclaOrigen;
  gateway.datTDeclaraciones_Ejercicio = lngEjerDes;
  gateway.datTDeclaraciones_Moneda = strMoneda;
  OpenDataDatabase(mdbmod_);
  const int32_t created = gateway.DuplicarDeclaracion();
  records::cTDeclarados().DuplicarDeclarados(created, lngCodDeclaOrigen, lngEjerOrg, lngEjerDes);
  records::cTArrendamientos().DuplicarArrendamientos(created, lngCodDeclaOrigen, lngEjerDes);
  return created;
}

int32_t cDeclaraciones::GuardarDeclaracion(int32_t lngEjercicio, const std::string& strMoneda,
                                           int32_t lngDeclarante) {
  return InDataDatabase("cDeclaraciones.GuardarDeclaracion ", mdbmod_, [&] {
    cTDeclaraciones gateway;
    gateway.datTDeclaraciones_Ejercicio = lngEjercicio;
    gateway.datTDeclaraciones_Moneda = strMoneda;
    gateway.datTDeclaraciones_CodDecr = lngDeclarante;
    return gateway.Insertar();
  });
}

Variant cDeclaraciones::ObtenerTotalDeclarados(int32_t lngCodeclar) {
  return InDataDatabase("cDeclaraciones.ObtenerTotalDeclarados ", mdbmod_, [&] {
    records::cTDeclarados gateway;
    gateway.Let(records::cTDeclarados::coddeclar, lngCodeclar);
    return gateway.ObtenerTotalOperaciones();
  });
}

int16_t cDeclaraciones::ObtenerTotalArrendamientos(int32_t lngCodeclar) {
  return InDataDatabase("cDeclaraciones.ObtenerTotalArrendamientos ", mdbmod_, [&] {
    records::cTArrendamientos gateway;
    gateway.Let(records::cTArrendamientos::coddeclar, lngCodeclar);
    return gateway.ObtenerTotalArrendamientos();
  });
}

int32_t cDeclaraciones::ObtenerDeclaracion(int32_t lngCodDecl, int32_t lngEjercicio) {
  return InDataDatabase("cDeclaraciones.ObtenerDeclaracion ", mdbmod_, [&] {
    cTDeclaraciones gateway;
    gateway.datTDeclaraciones_CodDecr = lngCodDecl;
    gateway.datTDeclaraciones_Ejercicio = lngEjercicio;
    return gateway.ObtenerDeclaracion();
  });
}

Variant cDeclaraciones::MaxEjerMon(bool blnSoloEuros, int16_t intEjerMin) {
  return InDataDatabase("cDeclaraciones.MaxEjerMon ", mdbmod_,
                 [&] { return cTDeclaraciones().MaxEjerMon(blnSoloEuros, intEjerMin); });
}

std::string cDeclaraciones::ObtenerMonedaDcion(const Variant& lngCodDcion) {
  return InDataDatabase("cDeclaraciones.ObtenerMonedaDcion ", mdbmod_, [&] {
    cTDeclaraciones gateway;
    gateway.datTDeclaraciones_CodDecla = CLng(lngCodDcion);
    return gateway.ObtenerMonedaDcion();
  });
}

Variant cDeclaraciones::ObtenerTotalDeclaradosVarDtes(const Variant& vBuffer,
                                                      int32_t lngEjercicio) {
  return InDataDatabase("cDeclaraciones.ObtenerTotalDeclaradosVarDtes ", mdbmod_, [&] {
    return records::cTDeclarados().ObtenerTotalDeclaradosVarDtes(vBuffer, lngEjercicio);
  });
}

std::string cDeclaraciones::ObtenerEjercicioDcion(const Variant& lngCodDcion) {
  return InDataDatabase("clDeclaraciones.ObtenerEjercicioDcion ", mdbmod_, [&] {
    cTDeclaraciones gateway;
    gateway.datTDeclaraciones_CodDecla = CLng(lngCodDcion);
    return std::to_string(gateway.ObtenerEjercicio());
  });
}

}  // namespace zerbal
