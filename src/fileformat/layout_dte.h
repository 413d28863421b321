// A line of the declarants file, 162 characters (the CR LF is the file's).
// The municipality comes before the postal-code digits.

#ifndef ZERBAL_FILEFORMAT_LAYOUT_DTE_H_
#define ZERBAL_FILEFORMAT_LAYOUT_DTE_H_

#include <array>

#include "fileformat/layout.h"

namespace zerbal::fileformat {

inline constexpr std::array kCamposLineaDte = {
    T("dni_cifd",      1,  9, Declarante(1)),
    T("nombred",      10, 40, Declarante(2)),
    T("viad",         50,  2, Declarante(3)),
    T("domiciliod",   52, 20, Declarante(4)),
    N("numerod",      72,  5, Declarante(5)),
    T("letrad",       77,  2, Declarante(6)),
    T("escalerad",    79,  2, Declarante(7)),
    T("pisod",        81,  2, Declarante(8)),
    T("manod",        83,  3, Declarante(9)),
    T("cod",          86,  2, Declarante(10)),
    T("municipiod",   88, 12, Declarante(12)),
    T("codpostald",  100,  3, Calculado(kUltimosCodPostal)),
    T("prefijod",    103,  3, Declarante(13)),
    T("telefonod",   106,  7, Declarante(14)),
    T("nombrepd",    113, 40, Declarante(15)),
    T("prefijopd",   153,  3, Declarante(16)),
    T("telefonopd",  156,  7, Declarante(17)),
};
inline constexpr Layout kLineaDte{"GenerarLineaDte", 162, kCamposLineaDte};
static_assert(FaultyField(kLineaDte) < 0);

}  // namespace zerbal::fileformat

#endif  // ZERBAL_FILEFORMAT_LAYOUT_DTE_H_
