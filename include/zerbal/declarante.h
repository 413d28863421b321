// cDeclarante: the declarants, the taxpayers on whose behalf declarations
// are made.
//
// The declarant buffer is a one-dimensional array 0 to 17: 0 coddec,
// 1 dni_cifd, 2 nombred, 3 viad (street type), 4 domiciliod (street name),
// 5 numerod, 6 letrad, 7 escalerad, 8 pisod, 9 manod, 10 cod (province),
// 11 codpostald, 12 municipiod, 13 prefijod, 14 telefonod, 15 nombrepd,
// 16 prefijopd, 17 telefonopd. Numbers are 32-bit integers and texts
// strings; index 11 carries the last three characters of the postal code
// both ways (20005 is saved as 5 and loads as "5").
//
// List buffers are tables (column, row) of three string columns, 0 coddec,
// 1 dni_cifd, 2 nombred, rows from 1; Null when there are no declarants.
//
// Every method opens the data database (mdbmod) on the calling thread's
// shared connection.

#ifndef ZERBAL_DECLARANTE_H_
#define ZERBAL_DECLARANTE_H_

#include <cstdint>
#include <string>

#include "zerbal/path_properties.h"
#include "zerbal/variant.h"

namespace zerbal {

class cDeclarante : public PathProperties {
 public:
  // Replaces the buffer with the declarant of that code: texts trimmed (the
  // telephones and the contact's name as stored), "´" where an apostrophe
  // was typed. A code of 0 or below gives that code with empty texts, zero
  // numbers and "0" at index 11; a code that does not exist raises 3021.
  void CargarDeclarante(int32_t lngCoddec, Variant& vBufferResultado);

  // Inserts the buffer as a new declarant when element 0 is 0 (or empty) and
  // returns the new code; otherwise updates the declarant of that code and
  // returns it. Leaves the data database open.
  int32_t GuardarDeclarante(const Variant& vBufferResultado);

  // Deletes the declarant; with bDeclaraciones also every declaration of it
  // with their operations and rentals (otherwise its declarations stay).
  // Errors carry the prefix "cDeclarante.EliminarDeclarante ".
  void EliminarDeclarante(int32_t SecDte, bool bDeclaraciones = false);

  // The four declarants of highest code, highest first, and every declarant
  // by identifier. Errors carry the prefixes
  // "cDeclarante.ObtenerUltimosDeclarantes " / "cDeclarante.ObtenerDeclarantes "
  // before the gateway's own.
  Variant ObtenerUltimosDeclarantes();
  Variant ObtenerDeclarantes();

  // The code of a declarant whose identifier begins with strNif (the LIKE
  // wildcards * ? # [ ] in it act as such), or 0.
  int32_t NifRepetido(const std::string& strNif);
};

}  // namespace zerbal

#endif  // ZERBAL_DECLARANTE_H_
