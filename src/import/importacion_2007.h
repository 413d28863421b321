// The module Importacion_2007: the operation and rental lines of
// declarations of 2007 and before, in the layouts of Export2007, where the
// country is a numeric code of three digits. Convertir as in
// Importacion_2008.
//
// A numeric country code is judged without its surrounding blanks: a state
// line converted by ConvDelEstatal_2007 holds it left-justified ("1  ").
// Unknown to the country table gives 27, not digits 28; a resident's
// country must be blank or "000" (35).

#ifndef ZERBAL_IMPORT_IMPORTACION_2007_H_
#define ZERBAL_IMPORT_IMPORTACION_2007_H_

#include <cstdint>
#include <string>
#include <string_view>

#include "zerbal/variant.h"

namespace zerbal::Importacion_2007 {

// Values buffer (0 to 13, 0 to 1): LeerDeclarado_2008's fields up to
// ClaveArr (one amount, Importe).
Variant LeerDeclarado_2007(std::string_view strLinea, bool& Convertir);

// As ValidarDeclarado_2008 with the single amount Importe and the numeric
// country: a non-resident's 27 and 28 (no 49), a resident's 28 and 35.
// Source "Importacion.ValidarDeclarado_2007".
Variant ValidarDeclarado_2007(const Variant& vBufferValores, int16_t intLimite,
                              const std::string& mdblec, const std::string& mdbmod,
                              int32_t EjercicioMax, int32_t EjercicioMin,
                              const std::string& Declaracion);

// Values buffer (0 to 17, 0 to 1) of LeerArrendamiento_2008's fields; Pais
// is the numeric code at 86-88 ("000" when there is none).
Variant LeerArrendamiento_2007(std::string_view strLinea, bool& Convertir);

// As ValidarArrendamiento_2008 with the numeric country (27 and 28 for a
// lessee without NIF; 28 and 35 for one with it) and the premises'
// municipality blank (18). Source "Importacion.ValidarArrendamiento_2007".
Variant ValidarArrendamiento_2007(const Variant& vBufferValores, int16_t intLimite,
                                  const std::string& mdblec, const std::string& mdbmod,
                                  int32_t EjercicioMax, int32_t EjercicioMin,
                                  const std::string& Declaracion);

}  // namespace zerbal::Importacion_2007

#endif  // ZERBAL_IMPORT_IMPORTACION_2007_H_
