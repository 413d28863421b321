#include "zerbal/declarante.h"

#include "base/convert.h"
#include "base/raise.h"
#include "data/open.h"
#include "records/declaraciones/t_declaraciones.h"
#include "records/declarante/t_declarante.h"

namespace zerbal {

using records::cTDeclarante;

void cDeclarante::CargarDeclarante(int32_t lngCoddec, Variant& vBufferResultado) {
  OpenDataDatabase(mdbmod_);
  cTDeclarante gateway;
  gateway.Let(records::kCodigo, lngCoddec);
  gateway.Seleccionar();
  vBufferResultado = gateway.ToBuffer();
  Conexion().Cerrar();
}

int32_t cDeclarante::GuardarDeclarante(const Variant& vBufferResultado) {
  OpenDataDatabase(mdbmod_);
  cTDeclarante gateway;
  gateway.FromBuffer(vBufferResultado);
  if (CLng(vBufferResultado(0)) == 0) {
    gateway.Insertar();
    return gateway.MaxDeclarante();
  }
  gateway.Modificar();
  return CLng(vBufferResultado(0));
}

void cDeclarante::EliminarDeclarante(int32_t SecDte, bool bDeclaraciones) {
  WithPrefix("cDeclarante.EliminarDeclarante ", [&] {
    OpenDataDatabase(mdbmod_);
    cTDeclarante gateway;
    gateway.Let(records::kCodigo, SecDte);
    if (bDeclaraciones) records::cTDeclaraciones().BorrarTodas(SecDte);
    gateway.Borrar();
    Conexion().Cerrar();
  });
}

Variant cDeclarante::ObtenerUltimosDeclarantes() {
  return InDataDatabase("cDeclarante.ObtenerUltimosDeclarantes ", mdbmod_,
                        [] { return cTDeclarante().ObtenerUltimosDeclarantes(); });
}

Variant cDeclarante::ObtenerDeclarantes() {
  return InDataDatabase("cDeclarante.ObtenerDeclarantes ", mdbmod_,
                        [] { return cTDeclarante().ObtenerDeclarantes(); });
}

int32_t cDeclarante::NifRepetido(const std::string& strNif) {
  OpenDataDatabase(mdbmod_);
  cTDeclarante gateway;
  gateway.Let(records::kDniCif, strNif);
  const int32_t code = gateway.ExisteNif();
  Conexion().Cerrar();
  return code;
}

}  // namespace zerbal
