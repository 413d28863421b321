// cTDeclarante: the gateway of table TDeclarante, one row per declarant. Its
// properties are the eighteen declarant columns (PersonaRow slots: coddec,
// dni_cifd, nombred, viad, domiciliod, numerod, letrad, escalerad, pisod,
// manod, cod, codpostald, municipiod, prefijod, telefonod, nombrepd,
// prefijopd, telefonopd).
//
// Statements run through the shared connection on the selected database.

#ifndef ZERBAL_RECORDS_DECLARANTE_T_DECLARANTE_H_
#define ZERBAL_RECORDS_DECLARANTE_T_DECLARANTE_H_

#include <cstdint>

#include "records/persona/persona_row.h"

namespace zerbal::records {

class cTDeclarante : public PersonaRow {
 public:
  cTDeclarante();

  // Loads the declarant of the stored coddec (when above 0; otherwise false
  // and nothing changes). A code with no row raises 3021.
  bool Seleccionar();
  // The highest coddec, 0 for an empty table.
  int32_t MaxDeclarante();
  // List buffers (coddec, dni_cifd, nombred as strings) of every declarant
  // by identifier, and of the four highest codes, highest first; Null when
  // there is none. Errors carry the prefix "cTDeclarante.<method> ".
  Variant ObtenerDeclarantes();
  Variant ObtenerUltimosDeclarantes();
  // The code of a declarant whose identifier begins with the stored
  // dni_cifd (LIKE wildcards in it act as wildcards), or 0.
  int32_t ExisteNif();
};

}  // namespace zerbal::records

#endif  // ZERBAL_RECORDS_DECLARANTE_T_DECLARANTE_H_
