// cTPersonalizacion: the user's settings in the data database's tGeneral:
// the language of the interface and the online update. Reads take the first
// row; writes change every row.

#ifndef ZERBAL_REFERENCE_T_PERSONALIZACION_H_
#define ZERBAL_REFERENCE_T_PERSONALIZACION_H_

#include <cstdint>
#include <string>

namespace zerbal::reference {

class cTPersonalizacion {
 public:
  int16_t ActOnline = 0;
  std::string Idioma;

  // Writes ActOnline (resp. Idioma, between apostrophes as it is) into
  // every row of tGeneral.
  void GuardarActOnline();
  void GuardarIdioma();
  // The stored values; 0 and "C" when tGeneral has no row.
  int16_t ObtenerActOnline();
  std::string ObtenerIdioma();
};

}  // namespace zerbal::reference

#endif  // ZERBAL_REFERENCE_T_PERSONALIZACION_H_
