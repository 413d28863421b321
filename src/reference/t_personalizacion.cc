#include "reference/t_personalizacion.h"

#include "base/convert.h"
#include "data/queries.h"
#include "zerbal/conexion_dao.h"

namespace zerbal::reference {

void cTPersonalizacion::GuardarActOnline() {
  Conexion().execute("Update tGeneral Set ActOnline =" + std::to_string(ActOnline));
}

void cTPersonalizacion::GuardarIdioma() {
  Conexion().execute("Update tgeneral Set Idioma ='" + Idioma + "'");
}

int16_t cTPersonalizacion::ObtenerActOnline() {
  const Variant stored = QueryFirst("select ActOnline from tgeneral");
  return stored.IsEmpty() ? 0 : CInt(Trim(CStr(stored)));
}

std::string cTPersonalizacion::ObtenerIdioma() {
  const Variant stored = QueryFirst("select Idioma from tgeneral");
  return stored.IsEmpty() ? "C" : Trim(CStr(stored));
}

}  // namespace zerbal::reference
