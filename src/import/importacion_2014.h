// The module Importacion_2014: the declared-operation (type 2) and rental
// (type 3) lines of declarations of fiscal year 2014 on, split into values
// buffers and validated field by field.
//
// The splitters cut the 500-character records of Export2014 with the same
// field tables (fileformat/layout_reg2.h, layout_reg3.h); a value is the
// text as it stands, untrimmed, shorter or empty where the line ends sooner.
// The validators return an errors buffer (import/errores.h), empty when the
// line may be stored. They never raise for bad data; a failure that is not
// the data's (a database that cannot be read, the validation component
// missing) is raised with the validator's name as its source.

#ifndef ZERBAL_IMPORT_IMPORTACION_2014_H_
#define ZERBAL_IMPORT_IMPORTACION_2014_H_

#include <cstdint>
#include <string>
#include <string_view>

#include "zerbal/variant.h"

namespace zerbal::Importacion_2014 {

// Values buffer (0 to 34, 0 to 1): fields 1 to 30 Modelo, Ejercicio,
// CodProv, NIF (the declarant's), ClaveOpe, NIF (the declared party's),
// Nombre, ClaveRep, Prov, Pais, ImpOpe, ClaveSeg, ClaveArr, ImpMet, ImpTra,
// EjerMet, ImpOpe1t, ImpTra1t to ImpOpe4t, ImpTra4t, SigIntra, NifIntra,
// OpeCaja, OpeInve, OpeRegm, ImpOpeCaja; 31 to 34 stay empty.
Variant LeerDeclarado_2014(std::string_view strLinea);

// The checks of every field in field order, then the cross checks of the
// amounts (53, 54, 52, 55, 51), then, for a resident party and at most one
// error so far, the duplicate test against declaration `Declaracion` (30).
// Amounts: a sign position ("N" negative; blank, "0" or "-" positive) and
// 15 digits. Each amount field records at most one error, the last of its
// checks that failed, with its trimmed value.
Variant ValidarDeclarado_2014(const Variant& vBufferValores, int16_t intLimite,
                              const std::string& mdblec, const std::string& mdbmod,
                              int32_t EjercicioMax, int32_t EjercicioMin,
                              const std::string& Declaracion);

// Records 56 with the value when its sign position holds anything but "N",
// a blank, "0" or "-".
void ComprobarSigno(const std::string& strValor, Variant& vBufferErrores, int16_t& intErrores);

// Values buffer (0 to 17, 0 to 1): Modelo, Ejercicio, CodProv, NIF,
// NIFPRE (the lessee's NIF), Nombre, Importe, Prov, Pais (not in the line:
// "OP" when NIFPRE is blank, else empty), Municipio, RefCat, Via, Domicilio,
// Numero, Escalera, Piso, Puerta. Amounts of 2014 on are euro cents, so
// `Convertir` changes nothing here.
Variant LeerArrendamiento_2014(std::string_view strLinea, bool& Convertir);

// The checks of every field in field order; rentals have no cross checks
// and no duplicate test.
Variant ValidarArrendamiento_2014(const Variant& vBufferValores, int16_t intLimite,
                                  const std::string& mdblec, const std::string& mdbmod,
                                  int32_t EjercicioMax, int32_t EjercicioMin,
                                  const std::string& Declaracion);

}  // namespace zerbal::Importacion_2014

#endif  // ZERBAL_IMPORT_IMPORTACION_2014_H_
