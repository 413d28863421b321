// Conversions of state-layout premises lines ("I" at state 76) into record
// 3. The tenant's NIF is left blank when the premises' province reads as 0
// (kNifArrendatario). 2014 keeps the sign and is 500 characters long; 2011
// and 2008 have none, so everything after it sits one position earlier,
// and end at 250 characters; 2007 reads its own state positions and writes
// "000" at 86-88.

#ifndef ZERBAL_FILEFORMAT_LAYOUT_CONV_REG3_H_
#define ZERBAL_FILEFORMAT_LAYOUT_CONV_REG3_H_

#include <array>
#include <cstddef>

#include "fileformat/layout.h"
#include "fileformat/layout_conv_dte.h"

namespace zerbal::fileformat {

// The province of the premises, which the NIF rule reads too.
inline constexpr Source kProvinciaInmueble = Estatal(327, 328);
inline constexpr Source kProvinciaInmueble_2007 = Estatal(140, 141);

inline constexpr auto kArrendatarioEstatal = Join(CabeceraEstatal(Const(1, "3")), std::array{
    TT("nifa",             20,  9, Calculado(kNifArrendatario)),
    TT("razon",            29, 40, Estatal(36, 75)),
});

inline constexpr auto kCamposInmuebleEstatal_2014 = Join(kArrendatarioEstatal, std::array{
    T("signo",             69,  1, Estatal(99, 99)),
    NBC("importe",         70, 15, Estatal(100, 114)),
    MaskBC("provi",        85,  2, kProvinciaInmueble),
    Blanks(                87,  3),
    TT("municipioa",       90, 24, Estatal(292, 315)),
    TT("refcat",          114, 25, Estatal(116, 140)),
    TT("viaa",            139,  2, Estatal(141, 142)),
    TT("domicilioa",      141, 25, Estatal(146, 165)),
    NBC("numeroa",        166,  5, Estatal(199, 203)),
    TT("escaleraa",       171,  2, Estatal(213, 214)),
    TT("pisoa",           173,  2, Estatal(216, 217)),
    TT("puertaa",         175,  2, Estatal(219, 220)),
    Blanks(               177, 324),
});
inline constexpr Layout kConvInmueble_2014{"ConvDelEstatal_2014.ConvertirInmueble", 500,
                                           kCamposInmuebleEstatal_2014};
static_assert(FaultyField(kConvInmueble_2014) < 0);

// The line without the sign at `signo`: every later field sits one
// position earlier, and the closing blanks end it at `longitud`.
template <size_t N>
constexpr std::array<Field, N - 1> SinSigno(const std::array<Field, N>& con_signo, int16_t signo,
                                            int16_t longitud) {
  std::array<Field, N - 1> campos{};
  size_t n = 0;
  for (const Field& campo : con_signo) {
    if (campo.start == signo) continue;
    campos[n] = campo;
    if (campo.start > signo) --campos[n].start;
    ++n;
  }
  campos[N - 2].width = static_cast<int16_t>(longitud - campos[N - 2].start + 1);
  return campos;
}

// Also ConvDelEstatal_2008's.
inline constexpr auto kCamposInmuebleEstatal_2011 = SinSigno(kCamposInmuebleEstatal_2014, 69, 250);
inline constexpr Layout kConvInmueble_2011{"ConvDelEstatal_2011.ConvertirInmueble", 250,
                                           kCamposInmuebleEstatal_2011};
static_assert(FaultyField(kConvInmueble_2011) < 0);

inline constexpr auto kCamposInmuebleEstatal_2007 = Join(kArrendatarioEstatal, std::array{
    NBC("importe",         69, 15, Estatal(100, 114)),
    MaskBC("provi",        84,  2, kProvinciaInmueble_2007),
    Const(86, "000"),
    TT("municipioa",       89, 24, Estatal(142, 165)),
    TT("refcat",          113, 25, Estatal(115, 139)),
    TT("viaa",            138,  2, Estatal(166, 167)),
    TT("domicilioa",      140, 25, Estatal(168, 187)),
    NBC("numeroa",        165,  5, Estatal(188, 192)),
    TT("escaleraa",       170,  2, Estatal(193, 194)),
    TT("pisoa",           172,  2, Estatal(195, 196)),
    TT("puertaa",         174,  2, Estatal(197, 198)),
    Blanks(               176, 75),
});
inline constexpr Layout kConvInmueble_2007{"ConvDelEstatal_2007.ConvertirInmueble", 250,
                                           kCamposInmuebleEstatal_2007};
static_assert(FaultyField(kConvInmueble_2007) < 0);

}  // namespace zerbal::fileformat

#endif  // ZERBAL_FILEFORMAT_LAYOUT_CONV_REG3_H_
