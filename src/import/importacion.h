// The module Importacion: what every import shares. The line-level checks
// that the driver makes (allowed characters, record type, fiscal year of the
// line), the small field checks that the year validators make, and the
// declarant lines: their two splitters and their validator.
//
// Values buffer: a two-dimensional array indexed (field, column); (k, 0) is
// the value of field k, (k, 1) its name, by which the validators pick each
// field's checks; field 0 is kept for the record's code. Errors buffers are
// described in import/errores.h.
//
// The checks never raise for bad data: they record numbered errors.

#ifndef ZERBAL_IMPORT_IMPORTACION_H_
#define ZERBAL_IMPORT_IMPORTACION_H_

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "zerbal/variant.h"

namespace zerbal::Importacion {

// One entry per code 0 to 255 of Windows-1252: true when a line may hold
// that character. Allowed are 32 to 126 but "^", "`" and "|", and these 24
// above 127: no-break space ¡ ª soft-hyphen ° º ¿ Á Ç É Í Ñ Ó × Ú Ü á ç é í
// ñ ó ú ü.
std::array<bool, 256> TablaCaracteres();

// An errors buffer with error 47 and the first character of the line that is
// not allowed (its Windows-1252 code decides; a character without one counts
// as "?"), or empty. A byte that is not UTF-8 is refused as U+FFFD.
Variant ValidarCaracteres(std::string_view strLinea);

// Whether the line's first character is 0, 1, 2 or 3. Any other first
// character (a letter, a blank, none at all) makes an unknown record type.
bool TipoRegistroValido(std::string_view strLinea);

// An errors buffer with error 48 when characters 5 to 8 of the line are not
// `strEjercicio`; its text is those characters, " - " and `strEjercicio`.
Variant ComprobarEjercicio(std::string_view strLinea, const std::string& strEjercicio);

// The small field checks. Each records `lngError` in the errors buffer at
// position `intErrores` (and counts it) when the value fails:
// blank (trimmed empty), with the value as text;
void ComprobarVacio(const std::string& strValor, Variant& vBufferErrores, int16_t& intErrores,
                    int32_t lngError);
// blank, with an empty text;
void ComprobarVacioSinTexto(const std::string& strValor, Variant& vBufferErrores,
                            int16_t& intErrores, int32_t lngError);
// a character other than 0 to 9 (the empty value passes); true when it passes;
// SoloCifras is the same test without recording anything;
bool SoloCifras(std::string_view strValor);
bool ComprobarNumerico(const std::string& strValor, Variant& vBufferErrores, int16_t& intErrores,
                       int32_t lngError);
// fewer than `intMinimo` characters, with the value as text;
void ComprobarLongitudMinima(const std::string& strValor, Variant& vBufferErrores,
                             int16_t& intErrores, int32_t lngError, int16_t intMinimo);
// a number below 0, with the value as text;
void ComprobarNoNegativo(const std::string& strValor, Variant& vBufferErrores,
                         int16_t& intErrores, int32_t lngError);
// the values of fields 1 to the last adding up to more than `intLimite`
// characters, with an empty text; true when within the limit.
bool ComprobarLongitudTotal(const Variant& vBufferValores, Variant& vBufferErrores,
                            int16_t& intErrores, int32_t lngError, int16_t intLimite);

// A line of the declarants file (162 characters) as a values buffer
// (0 to 17, 0 to 1), every value trimmed; CP is the two characters at 86
// followed by the three at 100.
Variant LeerDte(std::string_view strLinea);

// A declarant record of the declaration file as a values buffer (0 to 18,
// 0 to 1): NIF, name and fiscal year (field 18) as they stand; the address
// fields hold placeholders that mean "no address given".
Variant LeerDte_Cion(std::string_view strLinea);

// The errors of a declarant's values (either splitter): the total length
// (24, and nothing else when it fails), the NIF through the validation
// component (0), the name (1), the address when one is given (3, 19, 20, 4,
// 6, 21, 6, 7) and the fiscal year (43). A failure of the component or
// anything else unexpected is raised with the source "Importacion.ValidarDte".
Variant ValidarDte(const Variant& vBufferValores, int16_t intLimite);

}  // namespace zerbal::Importacion

#endif  // ZERBAL_IMPORT_IMPORTACION_H_
