// Positions 1 to 19 of records 1, 2 and 3 in every layout: the record type,
// the form, the year and the declarant's province and NIF.

#ifndef ZERBAL_FILEFORMAT_LAYOUT_HEAD_H_
#define ZERBAL_FILEFORMAT_LAYOUT_HEAD_H_

#include <array>
#include <string_view>

#include "fileformat/layout.h"

namespace zerbal::fileformat {

constexpr std::array<Field, 5> Cabecera(std::string_view tipo) {
  return {
      Const(1, tipo),
      Const(2, "347"),
      N("ejercicio",   5,  4, Calculado(kEjercicio)),
      N("cod",         9,  2, Declarante(10)),
      T("dni_cifd",   11,  9, Declarante(1)),
  };
}

}  // namespace zerbal::fileformat

#endif  // ZERBAL_FILEFORMAT_LAYOUT_HEAD_H_
