// The save buffers that the driver hands to cDeclarado.GuardarDeclarado and
// cArrendamiento.GuardarArrendamiento, built from the values of an accepted
// line (fields taken by name, so every year's values buffer serves).
// Elements a year's layout has no place for stay Empty.

#ifndef ZERBAL_IMPORT_REGISTROS_H_
#define ZERBAL_IMPORT_REGISTROS_H_

#include <cstdint>
#include <string>

#include "zerbal/variant.h"

namespace zerbal::Importacion {

// The text trimmed, with a leading "N" (a negative amount) turned into "-".
std::string ConSigno(const std::string& strValor);

// The operation (0 to 27) of the line's own year (field Ejercicio), a new
// row of declaration `lngDeclaracion`. Up to 2007 the numeric country code
// is stored in three digits ("000" for none), whatever blanks surround it
// in the line.
Variant BufferDeclarado(const Variant& vBufferValores, int32_t lngDeclaracion);

// The rental (0 to 15) of a declaration of year `lngEjercicio`, a new row of
// declaration `lngDeclaracion`.
Variant BufferArrendamiento(const Variant& vBufferValores, int32_t lngDeclaracion,
                            int32_t lngEjercicio);

}  // namespace zerbal::Importacion

#endif  // ZERBAL_IMPORT_REGISTROS_H_
