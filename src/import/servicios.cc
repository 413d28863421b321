#include "import/servicios.h"

#include <vector>

#include "base/convert.h"
#include "data/buffers.h"
#include "reference/miscelaneos.h"
#include "zerbal/automation.h"
#include "zerbal/datos_generales.h"
#include "zerbal/declarado.h"

namespace zerbal::Importacion {
namespace {

bool Componente(const char* method, std::vector<Variant> args) {
  auto miscelaneos = CreateObject(kMiscelaneosProgId);
  return CBool(miscelaneos->Call(method, args));
}

cDatosGenerales Descripciones(const std::string& mdblec) {
  cDatosGenerales datos;
  datos.mdblec(mdblec);
  return datos;
}

}  // namespace

bool NifValido(const std::string& strNif, bool blnSinLetra) {
  return Componente("ValidaNifCif", {strNif, blnSinLetra});
}

bool NifIntraValido(const std::string& strNif, const std::string& strPais) {
  return Componente("ValidarForeignNIf", {strNif, strPais});
}

std::string NombreProvincia(const std::string& mdblec, const std::string& strCodigo) {
  return Descripciones(mdblec).ObtenerNombreProvincia(General::SustituirComilla(strCodigo), 0);
}

std::string DescripcionVia(const std::string& mdblec, const std::string& strCodigo) {
  return Descripciones(mdblec).ObtenerDescriVia(General::SustituirComilla(strCodigo), 0);
}

std::string DescripcionPais(const std::string& mdblec, double dblCodigo) {
  if (dblCodigo < -32768 || dblCodigo > 32767) return {};
  return Descripciones(mdblec).ObtenerDesPais(static_cast<int32_t>(dblCodigo), 0);
}

bool DeclaradoRepetido(const std::string& mdbmod, const std::string& strDeclaracion,
                       const Coincidencia& c) {
  using General::SustituirComilla;
  cDeclarado declarado;
  declarado.mdbmod(mdbmod);
  return declarado.DeclaradosCoincidentes(
      strDeclaracion, SustituirComilla(c.nif), SustituirComilla(c.clave_ope),
      SustituirComilla(c.clave_arr), SustituirComilla(c.clave_seg), SustituirComilla(c.clave_rep),
      0, c.ejercicio, SustituirComilla(c.ope_caja), SustituirComilla(c.ope_inve),
      SustituirComilla(c.ope_regm));
}

}  // namespace zerbal::Importacion
