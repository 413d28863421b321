// The module Importacion_2011: the operation lines (type 2) of declarations
// of 2011 to 2013. Their record is the 2014 record up to the quarters
// (fileformat/layout_reg2.h); their rentals are Importacion_2008's.

#ifndef ZERBAL_IMPORT_IMPORTACION_2011_H_
#define ZERBAL_IMPORT_IMPORTACION_2011_H_

#include <cstdint>
#include <string>
#include <string_view>

#include "zerbal/variant.h"

namespace zerbal::Importacion_2011 {

// Values buffer (0 to 24, 0 to 1): fields 1 to 24 of LeerDeclarado_2014,
// Modelo to ImpTra4t.
Variant LeerDeclarado_2011(std::string_view strLinea);

// As ValidarDeclarado_2014 without the fields of 2014 (no 58, 66 to 69),
// without the sign check (no 56: "N" still makes an amount negative) and
// without the quarterly exemption (no 65: the quarters must add up whoever
// the declarant is). Failures not the data's are raised with the source
// "Importacion.ValidarDeclarado_2011".
Variant ValidarDeclarado_2011(const Variant& vBufferValores, int16_t intLimite,
                              const std::string& mdblec, const std::string& mdbmod,
                              int32_t EjercicioMax, int32_t EjercicioMin,
                              const std::string& Declaracion);

}  // namespace zerbal::Importacion_2011

#endif  // ZERBAL_IMPORT_IMPORTACION_2011_H_
