// Record 1, a declarant and the totals of its operations per key "A" to "E".
// From 2011 each sum has a sign position (Export2014 ends in "AYU",
// Export2011 in blanks); before, the sums are unsigned and converted from
// pesetas (Export2007 and Export2008 write the same record).

#ifndef ZERBAL_FILEFORMAT_LAYOUT_REG1_H_
#define ZERBAL_FILEFORMAT_LAYOUT_REG1_H_

#include <array>

#include "fileformat/layout.h"
#include "fileformat/layout_head.h"

namespace zerbal::fileformat {

inline constexpr auto kDeclaranteConSigno = Join(Cabecera("1"), std::array{
    T("nombred",    20, 40, Declarante(2)),
    N("numeroA",    60,  9, Total('A', kCuenta)),
    T("signoA",     69,  1, Total('A', kSigno)),
    N("importeA",   70, 15, Total('A', kMagnitud)),
    N("numeroB",    85,  9, Total('B', kCuenta)),
    T("signoB",     94,  1, Total('B', kSigno)),
    N("importeB",   95, 15, Total('B', kMagnitud)),
    N("numeroC",   110,  9, Total('C', kCuenta)),
    T("signoC",    119,  1, Total('C', kSigno)),
    N("importeC",  120, 15, Total('C', kMagnitud)),
    N("numeroD",   135,  9, Total('D', kCuenta)),
    T("signoD",    144,  1, Total('D', kSigno)),
    N("importeD",  145, 15, Total('D', kMagnitud)),
    N("numeroE",   160,  9, Total('E', kCuenta)),
    T("signoE",    169,  1, Total('E', kSigno)),
    N("importeE",  170, 15, Total('E', kMagnitud)),
    Const(185, "E"),
});

inline constexpr auto kCamposReg1_2014 =
    Join(kDeclaranteConSigno, std::array{Blanks(186, 312), Const(498, "AYU")});
inline constexpr Layout kReg1_2014{"Export2014 registro 1", 500, kCamposReg1_2014};
static_assert(FaultyField(kReg1_2014) < 0);

inline constexpr auto kCamposReg1_2011 = Join(kDeclaranteConSigno, std::array{Blanks(186, 315)});
inline constexpr Layout kReg1_2011{"Export2011 registro 1", 500, kCamposReg1_2011};
static_assert(FaultyField(kReg1_2011) < 0);

inline constexpr auto kCamposReg1_2007 = Join(Cabecera("1"), std::array{
    T("nombred",     20, 40, Declarante(2)),
    N("numeroA",     60,  9, Total('A', kCuenta)),
    Pts("importeA",  69, 15, Total('A', kSuma)),
    N("numeroB",     84,  9, Total('B', kCuenta)),
    Pts("importeB",  93, 15, Total('B', kSuma)),
    N("numeroC",    108,  9, Total('C', kCuenta)),
    Pts("importeC", 117, 15, Total('C', kSuma)),
    N("numeroD",    132,  9, Total('D', kCuenta)),
    Pts("importeD", 141, 15, Total('D', kSuma)),
    N("numeroE",    156,  9, Total('E', kCuenta)),
    Pts("importeE", 165, 15, Total('E', kSuma)),
    Const(180, "E"),
});
inline constexpr Layout kReg1_2007{"Export2007 registro 1", 180, kCamposReg1_2007};
static_assert(FaultyField(kReg1_2007) < 0);

}  // namespace zerbal::fileformat

#endif  // ZERBAL_FILEFORMAT_LAYOUT_REG1_H_
