#include "zerbal/presentador.h"

#include "base/convert.h"
#include "base/raise.h"
#include "data/open.h"
#include "records/presentador/t_presentador.h"

namespace zerbal {

using records::cTPresentador;

void cPresentador::CargarPresentador(Variant& vBufferResultado) {
  OpenDataDatabase(mdbmod_);
  cTPresentador gateway;
  gateway.Seleccionar();
  vBufferResultado = gateway.ToBuffer();
  Conexion().Cerrar();
}

int32_t cPresentador::GuardarPresentador(const Variant& vBufferResultado) {
  OpenDataDatabase(mdbmod_);
  cTPresentador gateway;
  gateway.FromBuffer(vBufferResultado);
  if (CLng(gateway.Get(records::kCodigo)) == 0) {
    gateway.Insertar();
    return gateway.MaxPresentador();
  }
  gateway.Modificar();
  return CLng(gateway.Get(records::kCodigo));
}

void cPresentador::EliminarPresentador(int32_t lngCodpres) {
  WithPrefix("cPresentador.EliminarPresentador ", [&] {
    OpenDataDatabase(mdbmod_);
    cTPresentador gateway;
    gateway.Let(records::kCodigo, lngCodpres);
    gateway.Borrar();
    Conexion().Cerrar();
  });
}

int32_t cPresentador::NifRepetido(const std::string& strNif) {
  OpenDataDatabase(mdbmod_);
  cTPresentador gateway;
  gateway.Let(records::kDniCif, strNif);
  const int32_t code = gateway.ExisteNif();
  Conexion().Cerrar();
  return code;
}

}  // namespace zerbal
