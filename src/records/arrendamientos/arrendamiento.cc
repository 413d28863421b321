#include "zerbal/arrendamiento.h"

#include "base/convert.h"
#include "base/raise.h"
#include "data/open.h"
#include "records/arrendamientos/t_arrendamientos.h"

namespace zerbal {

using records::cTArrendamientos;

namespace {

// A query of the gateway holding `value` in `slot`, under `prefix`.
Variant Query(std::string_view prefix, const std::string& mdbmod, int slot, int32_t value,
              Variant (cTArrendamientos::*query)()) {
  return InDataDatabase(prefix, mdbmod, [&] {
    cTArrendamientos gateway;
    gateway.Let(slot, value);
    return (gateway.*query)();
  });
}

int32_t Guardar(const std::string& mdbmod, const Variant& buffer) {
  OpenDataDatabase(mdbmod);
  cTArrendamientos gateway;
  gateway.FromBuffer(buffer, cTArrendamientos::kRecord);
  if (CLng(gateway.Get(cTArrendamientos::codarr)) != 0) {
    gateway.Let(cTArrendamientos::codarr, buffer(0));
    gateway.Modificar();
    return CLng(buffer(0));
  }
  gateway.Insertar();
  return gateway.MaxArrendamiento();
}

}  // namespace

// The import of 2007 files assigned the provinces last; the order of the
// assignments has no visible effect, so both saves are one.
int32_t cArrendamiento::GuardarArrendamiento_2007(const Variant& vBufferResultado) {
  return Guardar(mdbmod_, vBufferResultado);
}

int32_t cArrendamiento::GuardarArrendamiento(const Variant& vBufferResultado) {
  return Guardar(mdbmod_, vBufferResultado);
}

Variant cArrendamiento::ObtenerArrendamientos(int32_t lngDeclaracion) {
  return Query("cArrendamiento.ObtenerArrendamientos ", mdbmod_, cTArrendamientos::coddeclar,
               lngDeclaracion, &cTArrendamientos::ObtenerArrendamientos);
}

Variant cArrendamiento::ObtenerTodosLosArr(int32_t lngDeclaracion) {
  return Query("cArrendamiento.ObtenerTodosLosArr ", mdbmod_, cTArrendamientos::coddeclar,
               lngDeclaracion, &cTArrendamientos::ObtenerTodosLosArr);
}

Variant cArrendamiento::CargarArrendamiento(int32_t lngArrenamiento) {
  return Query("cArrendamiento.CargarDeclarado ", mdbmod_, cTArrendamientos::codarr,
               lngArrenamiento, &cTArrendamientos::CargarArrendamiento);
}

void cArrendamiento::EliminarArrendamiento(int32_t lngArrendamiento) {
  InDataDatabase("clArrendamientos.EliminarArrendamiento ", mdbmod_, [&] {
    cTArrendamientos gateway;
    gateway.Let(cTArrendamientos::codarr, lngArrendamiento);
    return gateway.EliminarArrendamiento();
  });
}

}  // namespace zerbal
