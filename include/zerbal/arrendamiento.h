// cArrendamiento: the business premises that a declarant rents out, one row
// per rental of a declaration.
//
// Save buffer, one dimension 0 to 15: 0 codarr (0 for a new row),
// 1 coddeclar, 2 prova, 3 paiso, 4 nifa (the tenant's identifier), 5 razon,
// 6 importe, 7 municipioa, 8 refcat, 9 viaa, 10 domicilioa, 11 numeroa,
// 12 escaleraa, 13 pisoa, 14 puertaa, 15 provi. Codes, provinces and the
// street number are converted to 32-bit integers, importe to a double
// (whole cents), the rest to text. An empty text is stored as one blank
// (paiso as given); an apostrophe in razon, municipioa, refcat, viaa,
// domicilioa, escaleraa, pisoa or puertaa is stored as "´". Any other text
// with an apostrophe raises 3075 and stores nothing.
//
// Values read back are strings (numbers in their invariant text, "´"
// turned back into "'"), and a result without rows is Null.
//
// Every method opens the data database (mdbmod) on the calling thread's
// shared connection and closes it on success, except the two saves, which
// leave it open and raise errors unchanged. The other methods put their
// prefix (listed below) before the description of any error.

#ifndef ZERBAL_ARRENDAMIENTO_H_
#define ZERBAL_ARRENDAMIENTO_H_

#include <cstdint>

#include "zerbal/path_properties.h"
#include "zerbal/variant.h"

namespace zerbal {

class cArrendamiento : public PathProperties {
 public:
  // Insert the buffer as a new rental when element 0 is 0 and return the
  // new codarr; otherwise update rental element 0 (nothing happens below 1)
  // and return element 0. Both give the same result; the import of 2007
  // files calls the first.
  int32_t GuardarArrendamiento_2007(const Variant& vBufferResultado);
  int32_t GuardarArrendamiento(const Variant& vBufferResultado);

  // Table (column, row) of the declaration's rentals by codarr: 0 codarr,
  // 1 nifa, 2 razon, 3 municipioa, 4 importe.
  // Prefix "cArrendamiento.ObtenerArrendamientos ".
  Variant ObtenerArrendamientos(int32_t lngDeclaracion);

  // Table of the declaration's rentals by name: 0 codarr, 1 coddeclar,
  // 2 provi, 3 paiso, 4 nifa, 5 razon, 6 importe, 7 municipioa, 8 refcat,
  // 9 viaa, 10 domicilioa, 11 numeroa, 12 escaleraa, 13 pisoa, 14 puertaa.
  // Prefix "cArrendamiento.ObtenerTodosLosArr ".
  Variant ObtenerTodosLosArr(int32_t lngDeclaracion);

  // The rental as a buffer 0 to 15: 0 coddeclar, 1 provi, 2 paiso, 3 nifa,
  // 4 razon, 5 importe, 6 municipioa, 7 refcat, 8 viaa, 9 domicilioa,
  // 10 numeroa, 11 escaleraa, 12 pisoa, 13 puertaa, 14 prova, 15 empty.
  // Prefix "cArrendamiento.CargarDeclarado ".
  Variant CargarArrendamiento(int32_t lngArrenamiento);

  // Prefix "clArrendamientos.EliminarArrendamiento ".
  void EliminarArrendamiento(int32_t lngArrendamiento);
};

}  // namespace zerbal

#endif  // ZERBAL_ARRENDAMIENTO_H_
