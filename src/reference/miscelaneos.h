// cMiscelaneos: the in-house validation component, created by its class
// name "Brevandol.cMiscelaneos" and called by name, as the identifier checks
// of cDatosGenerales and of the import do.

#ifndef ZERBAL_REFERENCE_MISCELANEOS_H_
#define ZERBAL_REFERENCE_MISCELANEOS_H_

#include <string>

namespace zerbal {

inline constexpr std::string_view kMiscelaneosProgId = "Brevandol.cMiscelaneos";

class cMiscelaneos {
 public:
  // A valid Spanish NIF of any kind; with blnSinLetra also a number written
  // without its control character (see reference/validacion/validacion.h).
  bool ValidaNifCif(const std::string& Cadena, bool blnSinLetra) const;
  // A valid VAT number of country strPais (two letters; EL or GR for Greece,
  // XI for Northern Ireland), with or without its prefix.
  bool ValidarForeignNIf(const std::string& Cadena, const std::string& strPais) const;
};

}  // namespace zerbal

#endif  // ZERBAL_REFERENCE_MISCELANEOS_H_
