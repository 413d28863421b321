// How the import's splitters cut a line: a table that names each field of
// the values buffer and the layout field (fileformat/layout*.h) it is cut
// from, so that a line is read with the same table that writes it.

#ifndef ZERBAL_IMPORT_CORTES_H_
#define ZERBAL_IMPORT_CORTES_H_

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "fileformat/layout.h"
#include "zerbal/variant.h"

namespace zerbal::Importacion {

struct Corte {
  std::string_view nombre;   // the field's name in the values buffer
  fileformat::Field campo{};  // where it stands in the line; width 0: not in the line
};

// A field of the values buffer cut from layout field `campo` of `fields`.
constexpr Corte Cortado(std::string_view nombre, std::span<const fileformat::Field> fields,
                        std::string_view campo) {
  return {nombre, fileformat::FieldNamed(fields, campo)};
}

// A field of the values buffer that the line does not hold.
constexpr Corte Fijo(std::string_view nombre) { return {nombre, {}}; }

// A values buffer (0 to `intUltimo`, 0 to 1): field k, from 1, is
// cortes[k - 1], named and cut from the line as it stands (untrimmed; empty
// for a field not in the line). Fields beyond the table stay Empty.
Variant Cortar(std::string_view strLinea, std::span<const Corte> cortes, int32_t intUltimo);

// The value of the first field called `nombre`, as text; empty when there
// is none.
std::string Valor(const Variant& vBufferValores, std::string_view nombre);

// The place of the first field called `nombre`; 0 when there is none.
int32_t Lugar(const Variant& vBufferValores, std::string_view nombre);

// With `Convertir` (a file in pesetas, a declaration in euros), the amount
// of the field `nombre` in euro cents (fileformat/pesetas.h), zero-filled
// to the width it had. A value that is not digits alone stays as read, for
// the validator to refuse.
void EnEuros(Variant& vBufferValores, std::string_view nombre, bool Convertir);

// The country of a rental of 2008 on, which the line does not hold: "OP"
// (other countries) when the lessee has no NIF, empty when it has one.
void PaisArrendamiento(Variant& vBufferValores);

}  // namespace zerbal::Importacion

#endif  // ZERBAL_IMPORT_CORTES_H_
