// The module Importacion_2008: the operation lines (type 2) of declarations
// of 2008 to 2010 and the rental lines (type 3) of 2008 to 2013, in the
// unsigned layouts of those years (fileformat/layout_reg2.h, layout_reg3.h).
//
// The splitters take the driver's Convertir: when it is true (a file in
// pesetas, a euro declaration) the amount that the export converts
// (Importe) is read as pesetas and turned into euro cents
// (fileformat/pesetas.h), so that it is stored as every amount is.

#ifndef ZERBAL_IMPORT_IMPORTACION_2008_H_
#define ZERBAL_IMPORT_IMPORTACION_2008_H_

#include <cstdint>
#include <string>
#include <string_view>

#include "zerbal/variant.h"

namespace zerbal::Importacion_2008 {

// Values buffer (0 to 15, 0 to 1): Modelo, Ejercicio, CodProv, NIF (the
// declarant's), ClaveOpe, NIF (the declared party's), Nombre, ClaveRep,
// Prov, Pais (three characters), Importe, ClaveSeg, ClaveArr, ImpMet,
// ImpInm; the amounts are 15 digits without a sign position.
Variant LeerDeclarado_2008(std::string_view strLinea, bool& Convertir);

// As ValidarDeclarado_2014 with the differences of these years: Importe,
// ImpMet and ImpInm each not digits (36), negative (37) or blank (41), with
// the value as read; no quarters, no cash-amount year, no cross checks of
// the amounts (51 to 55), no intra-community identifier (58). Source
// "Importacion.ValidarDeclarado_2008".
Variant ValidarDeclarado_2008(const Variant& vBufferValores, int16_t intLimite,
                              const std::string& mdblec, const std::string& mdbmod,
                              int32_t EjercicioMax, int32_t EjercicioMin,
                              const std::string& Declaracion);

// Values buffer (0 to 17, 0 to 1) of LeerArrendamiento_2014's fields, the
// amount unsigned; Pais as there ("OP" when the lessee has no NIF).
Variant LeerArrendamiento_2008(std::string_view strLinea, bool& Convertir);

// As ValidarArrendamiento_2014 but the amount: not digits (36), negative
// (37), blank (41), with the value as read; no sign check. Source
// "Importacion.ValidarArrendamiento_2008".
Variant ValidarArrendamiento_2008(const Variant& vBufferValores, int16_t intLimite,
                                  const std::string& mdblec, const std::string& mdbmod,
                                  int32_t EjercicioMax, int32_t EjercicioMin,
                                  const std::string& Declaracion);

}  // namespace zerbal::Importacion_2008

#endif  // ZERBAL_IMPORT_IMPORTACION_2008_H_
