// Record 0, the presenter and the file's counts: 500 characters from 2011
// (Export2014 and Export2011 write the same record), 180 before (Export2007).

#ifndef ZERBAL_FILEFORMAT_LAYOUT_REG0_H_
#define ZERBAL_FILEFORMAT_LAYOUT_REG0_H_

#include <array>

#include "fileformat/layout.h"

namespace zerbal::fileformat {

inline constexpr std::array kPresentador = {
    Const(1, "0"),
    Const(2, "347"),
    N("ejercicio",        5,  4, Calculado(kEjercicio)),
    Const(9, "20"),
    T("dni_cif",         11,  9, Presentador(1)),
    T("nombre",          20, 40, Presentador(2)),
    T("via",             60,  2, Presentador(3)),
    T("domicilio",       62, 20, Presentador(4)),
    N("numero",          82,  5, Presentador(5)),
    N("codpostal",       87,  5, Calculado(kCodigoPostal)),
    T("municipio",       92, 12, Presentador(12)),
    N("prefijo",        104,  3, Presentador(13)),
    NBC("telefono",     107,  7, Presentador(14)),
    N("lngNoTotalDtes", 114,  5, Calculado(kNoTotalDtes)),
    N("lngNoTotalDos",  119,  9, Calculado(kNoTotalDos)),
};

inline constexpr auto kCamposReg0_2014 = Join(kPresentador, std::array{Blanks(128, 373)});
inline constexpr Layout kReg0_2014{"Export2014 registro 0", 500, kCamposReg0_2014};
static_assert(FaultyField(kReg0_2014) < 0);

inline constexpr auto kCamposReg0_2007 = Join(kPresentador, std::array{Blanks(128, 53)});
inline constexpr Layout kReg0_2007{"Export2007 registro 0", 180, kCamposReg0_2007};
static_assert(FaultyField(kReg0_2007) < 0);

}  // namespace zerbal::fileformat

#endif  // ZERBAL_FILEFORMAT_LAYOUT_REG0_H_
