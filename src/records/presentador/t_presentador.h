// cTPresentador: the gateway of table TPresentador, which in practice holds
// one row, the presenter of the declaration files. Its properties are the
// eighteen presenter columns (PersonaRow slots: codpres, dni_cif, nombre,
// via, domicilio, numero, letra, escalera, piso, mano, cod, codpostal,
// municipio, prefijo, telefono, nombrep, prefijop, telefonop).
//
// Every statement runs through the shared connection on whatever database is
// selected there; errors are raised unchanged.

#ifndef ZERBAL_RECORDS_PRESENTADOR_T_PRESENTADOR_H_
#define ZERBAL_RECORDS_PRESENTADOR_T_PRESENTADOR_H_

#include <cstdint>

#include "records/persona/persona_row.h"

namespace zerbal::records {

class cTPresentador : public PersonaRow {
 public:
  cTPresentador();

  // Loads the first row of the table (whichever the engine gives first),
  // key included; false, with nothing changed, when the table is empty.
  bool Seleccionar();
  // The code of a presenter whose identifier is exactly the stored dni_cif
  // (letters in either case), 0 when none; 0 too when dni_cif is empty.
  int32_t ExisteNif();
  // The highest codpres, 0 for an empty table: the key of a row just added.
  int32_t MaxPresentador();
};

}  // namespace zerbal::records

#endif  // ZERBAL_RECORDS_PRESENTADOR_T_PRESENTADOR_H_
