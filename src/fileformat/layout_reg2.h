// Record 2, one declared operation: 500 characters with sign positions from
// 2011 (Export2014), 180 unsigned before (Export2008, and Export2007 with
// its keys F and G converted and numeric country codes).

#ifndef ZERBAL_FILEFORMAT_LAYOUT_REG2_H_
#define ZERBAL_FILEFORMAT_LAYOUT_REG2_H_

#include <array>

#include "fileformat/layout.h"
#include "fileformat/layout_head.h"

namespace zerbal::fileformat {

// The quarterly pairs interleave: each quarter's amount, then its impmobt.
inline constexpr auto kCamposReg2_2014 = Join(Cabecera("2"), std::array{
    T("claveopo",          20,  1, Declarado(5)),
    T("nifo",              21,  9, Declarado(3)),
    T("razon",             30, 40, Declarado(4)),
    T("claverep",          70,  1, Declarado(9)),
    N("provo",             71,  2, Declarado(1)),
    T0("paiso",            73,  2, Declarado(2)),
    Blanks(                75,  1),
    SA("importe",          76, 16, Declarado(6)),
    T("opeseg",            92,  1, Declarado(10)),
    T("opearr",            93,  1, Declarado(11)),
    N("impmet",            94, 15, Declarado(7)),
    SA("impinm",          109, 16, Declarado(8)),
    A("ejerimpmet",       125,  4, Declarado(20)),
    SA("impopet1",        129, 16, Declarado(12)),
    SA("impmobt1",        145, 16, Declarado(16)),
    SA("impopet2",        161, 16, Declarado(13)),
    SA("impmobt2",        177, 16, Declarado(17)),
    SA("impopet3",        193, 16, Declarado(14)),
    SA("impmobt3",        209, 16, Declarado(18)),
    SA("impopet4",        225, 16, Declarado(15)),
    SA("impmobt4",        241, 16, Declarado(19)),
    T("siglaspaisintra",  257,  2, Declarado(21)),
    T("nifpaisintra",     259, 15, Declarado(22)),
    T("opeivacaja",       274,  1, Declarado(23)),
    T("opeinvsujpas",     275,  1, Declarado(24)),
    T("operegposadu",     276,  1, Declarado(25)),
    SA("impanudevopecaj", 277, 16, Declarado(26)),
    Blanks(               293, 208),
});
inline constexpr Layout kReg2_2014{"Export2014 registro 2", 500, kCamposReg2_2014};
static_assert(FaultyField(kReg2_2014) < 0);

// impmet and impinm are never converted from pesetas.
inline constexpr auto kCamposReg2_2008 = Join(Cabecera("2"), std::array{
    T("claveopo",          20,  1, Declarado(5)),
    T("nifo",              21,  9, Declarado(3)),
    T("razon",             30, 40, Declarado(4)),
    T("claverep",          70,  1, Declarado(9)),
    Mask("provo",          71,  2, Declarado(1)),
    T("paiso",             73,  3, Declarado(2)),
    Pts("importe",         76, 15, Declarado(6)),
    T("opeseg",            91,  1, Declarado(10)),
    T("opearr",            92,  1, Declarado(11)),
    N("impmet",            93, 15, Declarado(7)),
    N("impinm",           108, 15, Declarado(8)),
    Blanks(               123, 58),
});
inline constexpr Layout kReg2_2008{"Export2008 registro 2", 180, kCamposReg2_2008};
static_assert(FaultyField(kReg2_2008) < 0);

inline constexpr auto kCamposReg2_2007 = Join(Cabecera("2"), std::array{
    Key("claveopo",        20,  1, Declarado(5)),
    T("nifo",              21,  9, Declarado(3)),
    T("razon",             30, 40, Declarado(4)),
    T("claverep",          70,  1, Declarado(9)),
    Mask("provo",          71,  2, Declarado(1)),
    NBC("paiso",           73,  3, Declarado(2)),
    Pts("importe",         76, 15, Declarado(6)),
    T("opeseg",            91,  1, Declarado(10)),
    T("opearr",            92,  1, Declarado(11)),
    Blanks(                93, 88),
});
inline constexpr Layout kReg2_2007{"Export2007 registro 2", 180, kCamposReg2_2007};
static_assert(FaultyField(kReg2_2007) < 0);

}  // namespace zerbal::fileformat

#endif  // ZERBAL_FILEFORMAT_LAYOUT_REG2_H_
