// Record 3, one rented business premises. Only Export2014 gives the amount a
// sign position; the others write it unsigned and converted, so everything
// after it sits one position earlier. Export2007 has "000" at 86-88 where
// Export2008 and Export2011 have blanks; Export2011 is 500 characters long.
// The rental's paiso and prova are not written.

#ifndef ZERBAL_FILEFORMAT_LAYOUT_REG3_H_
#define ZERBAL_FILEFORMAT_LAYOUT_REG3_H_

#include <array>

#include "fileformat/layout.h"
#include "fileformat/layout_head.h"

namespace zerbal::fileformat {

inline constexpr auto kArrendatario = Join(Cabecera("3"), std::array{
    T("nifa",         20,  9, Arrendamiento(3)),
    T("razon",        29, 40, Arrendamiento(4)),
});

inline constexpr auto kCamposReg3_2014 = Join(kArrendatario, std::array{
    SA("importe",     69, 16, Arrendamiento(5)),
    Mask("provi",     85,  2, Arrendamiento(1)),
    Blanks(           87,  3),
    T("municipioa",   90, 24, Arrendamiento(6)),
    T("refcat",      114, 25, Arrendamiento(7)),
    T("viaa",        139,  2, Arrendamiento(8)),
    T("domicilioa",  141, 25, Arrendamiento(9)),
    N("numeroa",     166,  5, Arrendamiento(10)),
    T("escaleraa",   171,  2, Arrendamiento(11)),
    T("pisoa",       173,  2, Arrendamiento(12)),
    T("puertaa",     175,  2, Arrendamiento(13)),
    Blanks(          177, 324),
});
inline constexpr Layout kReg3_2014{"Export2014 registro 3", 500, kCamposReg3_2014};
static_assert(FaultyField(kReg3_2014) < 0);

inline constexpr std::array kImporteSinSigno = {
    Pts("importe",    69, 15, Arrendamiento(5)),
    Mask("provi",     84,  2, Arrendamiento(1)),
};

inline constexpr std::array kInmuebleSinSigno = {
    T("municipioa",   89, 24, Arrendamiento(6)),
    T("refcat",      113, 25, Arrendamiento(7)),
    T("viaa",        138,  2, Arrendamiento(8)),
    T("domicilioa",  140, 25, Arrendamiento(9)),
    N("numeroa",     165,  5, Arrendamiento(10)),
    T("escaleraa",   170,  2, Arrendamiento(11)),
    T("pisoa",       172,  2, Arrendamiento(12)),
    T("puertaa",     174,  2, Arrendamiento(13)),
};

inline constexpr auto kCamposReg3_2011 =
    Join(kArrendatario, kImporteSinSigno, std::array{Blanks(86, 3)}, kInmuebleSinSigno,
         std::array{Blanks(176, 325)});
inline constexpr Layout kReg3_2011{"Export2011 registro 3", 500, kCamposReg3_2011};
static_assert(FaultyField(kReg3_2011) < 0);

inline constexpr auto kCamposReg3_2008 =
    Join(kArrendatario, kImporteSinSigno, std::array{Blanks(86, 3)}, kInmuebleSinSigno,
         std::array{Blanks(176, 5)});
inline constexpr Layout kReg3_2008{"Export2008 registro 3", 180, kCamposReg3_2008};
static_assert(FaultyField(kReg3_2008) < 0);

inline constexpr auto kCamposReg3_2007 =
    Join(kArrendatario, kImporteSinSigno, std::array{Const(86, "000")}, kInmuebleSinSigno,
         std::array{Blanks(176, 5)});
inline constexpr Layout kReg3_2007{"Export2007 registro 3", 180, kCamposReg3_2007};
static_assert(FaultyField(kReg3_2007) < 0);

}  // namespace zerbal::fileformat

#endif  // ZERBAL_FILEFORMAT_LAYOUT_REG3_H_
