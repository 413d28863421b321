// cPresentador: the presenter, the person or firm that hands the declaration
// files in. Its data fills the file's presenter record.
//
// The presenter buffer is a one-dimensional array 0 to 17: 0 codpres,
// 1 dni_cif, 2 nombre, 3 via (street type), 4 domicilio (street name),
// 5 numero, 6 letra, 7 escalera, 8 piso, 9 mano, 10 cod (province),
// 11 codpostal, 12 municipio, 13 prefijo, 14 telefono, 15 nombrep,
// 16 prefijop, 17 telefonop. Numbers are 32-bit integers and texts strings;
// index 11 carries the last three characters of the postal code both ways
// (a postal code 20005 is saved as 5 and loads as "5").
//
// Every method opens the data database (mdbmod) on the calling thread's
// shared connection.

#ifndef ZERBAL_PRESENTADOR_H_
#define ZERBAL_PRESENTADOR_H_

#include <cstdint>
#include <string>

#include "zerbal/path_properties.h"
#include "zerbal/variant.h"

namespace zerbal {

class cPresentador : public PathProperties {
 public:
  // Replaces the buffer with the first presenter row (whichever the engine
  // gives first); with no presenter, code 0, empty texts, zero numbers and
  // "0" at index 11. Texts come back trimmed (the telephones and the
  // contact's name as stored), with "´" where an apostrophe was typed.
  void CargarPresentador(Variant& vBufferResultado);

  // Inserts the buffer as a new presenter when element 0 is 0 (or empty),
  // otherwise updates the presenter of that code. Returns the presenter's
  // code. Leaves the data database open.
  int32_t GuardarPresentador(const Variant& vBufferResultado);

  // Deletes the presenter of that code. Errors carry the prefix
  // "cPresentador.EliminarPresentador ".
  void EliminarPresentador(int32_t lngCodpres);

  // The code of the presenter whose identifier is exactly strNif, or 0.
  int32_t NifRepetido(const std::string& strNif);
};

}  // namespace zerbal

#endif  // ZERBAL_PRESENTADOR_H_
