// Conversions of state-layout operation lines ("D" at state 76) into record
// 2. From 2011 the line keeps its sign positions (the state sign character
// goes in as it stands) and is 500 characters long; 2011 stops reading at
// output 256. 2008 and 2007 are unsigned, take the declared party's NIF by
// a rule (kNifDeclarado) and end at 279 and 249 characters; 2007 also
// converts the key and the province and country.

#ifndef ZERBAL_FILEFORMAT_LAYOUT_CONV_REG2_H_
#define ZERBAL_FILEFORMAT_LAYOUT_CONV_REG2_H_

#include <array>

#include "fileformat/layout.h"
#include "fileformat/layout_conv_dte.h"

namespace zerbal::fileformat {

// The state fields that the rules read.
inline constexpr Source kNifEstatal = Estatal(18, 26);
inline constexpr Source kNifRepresentante = Estatal(27, 35);
inline constexpr Source kProvinciaEstatal = Estatal(77, 78);
inline constexpr Source kProvPaisEstatal = Estatal(77, 81);
inline constexpr Source kClaveEstatal = Estatal(82, 82);

inline constexpr auto kDeclaradoEstatal = Join(CabeceraEstatal(kTipoEstatal), std::array{
    TT("claveopo",         20,  1, kClaveEstatal),
    TT("nifo",             21,  9, kNifEstatal),
    TT("razon",            30, 40, Estatal(36, 75)),
    Flag("claverep",       70, "R", kNifRepresentante),
    TT("provpais",         71,  5, kProvPaisEstatal),
    T("signo",             76,  1, Estatal(83, 83)),
    NBC("importe",         77, 15, Estatal(84, 98)),
    Flag("opeseg",         92, "X", Estatal(99, 99)),
    Flag("opearr",         93, "X", Estatal(100, 100)),
    NBC("impmet",          94, 15, Estatal(101, 115)),
    T("signoimpinm",      109,  1, Estatal(116, 116)),
    NBC("impinm",         110, 15, Estatal(117, 131)),
    NBC("ejerimpmet",     125,  4, Estatal(132, 135)),
    T("signoimpopet1",    129,  1, Estatal(136, 136)),
    NBC("impopet1",       130, 15, Estatal(137, 151)),
    T("signoimpmobt1",    145,  1, Estatal(152, 152)),
    NBC("impmobt1",       146, 15, Estatal(153, 167)),
    T("signoimpopet2",    161,  1, Estatal(168, 168)),
    NBC("impopet2",       162, 15, Estatal(169, 183)),
    T("signoimpmobt2",    177,  1, Estatal(184, 184)),
    NBC("impmobt2",       178, 15, Estatal(185, 199)),
    T("signoimpopet3",    193,  1, Estatal(200, 200)),
    NBC("impopet3",       194, 15, Estatal(201, 215)),
    T("signoimpmobt3",    209,  1, Estatal(216, 216)),
    NBC("impmobt3",       210, 15, Estatal(217, 231)),
    T("signoimpopet4",    225,  1, Estatal(232, 232)),
    NBC("impopet4",       226, 15, Estatal(233, 247)),
    T("signoimpmobt4",    241,  1, Estatal(248, 248)),
    NBC("impmobt4",       242, 15, Estatal(249, 263)),
});

inline constexpr auto kCamposDeclaradoEstatal_2014 = Join(kDeclaradoEstatal, std::array{
    TT("siglaspaisintra", 257,  2, Estatal(264, 265)),
    TT("nifpaisintra",    259, 15, Estatal(266, 280)),
    TT("opeivacaja",      274,  1, Estatal(281, 281)),
    TT("opeinvsujpas",    275,  1, Estatal(282, 282)),
    TT("operegposadu",    276,  1, Estatal(283, 283)),
    T("signoimpanudevopecaj", 277, 1, Estatal(284, 284)),
    NBC("impanudevopecaj", 278, 15, Estatal(285, 299)),
    Blanks(               293, 208),
});
inline constexpr Layout kConvDeclarado_2014{"ConvDelEstatal_2014.ConvertirDeclarado", 500,
                                            kCamposDeclaradoEstatal_2014};
static_assert(FaultyField(kConvDeclarado_2014) < 0);

inline constexpr auto kCamposDeclaradoEstatal_2011 =
    Join(kDeclaradoEstatal, std::array{Blanks(257, 244)});
inline constexpr Layout kConvDeclarado_2011{"ConvDelEstatal_2011.ConvertirDeclarado", 500,
                                            kCamposDeclaradoEstatal_2011};
static_assert(FaultyField(kConvDeclarado_2011) < 0);

// 2008 and 2007 around their differences (the key and 71-75).
inline constexpr std::array kDeclaradoSinSigno = {
    TT("nifo",             21,  9, Calculado(kNifDeclarado)),
    TT("razon",            30, 40, Estatal(36, 75)),
    Flag("claverep",       70, "R", kNifRepresentante),
};
inline constexpr std::array kImporteSinSigno_2008 = {
    NBC("importe",         76, 15, Estatal(83, 97)),
    Flag("opeseg",         91, "X", Estatal(98, 98)),
    Flag("opearr",         92, "X", Estatal(99, 99)),
};

inline constexpr auto kCamposDeclaradoEstatal_2008 = Join(
    CabeceraEstatal(kTipoEstatal), std::array{TT("claveopo", 20, 1, kClaveEstatal)},
    kDeclaradoSinSigno, std::array{TT("provpais", 71, 5, kProvPaisEstatal)},
    kImporteSinSigno_2008, std::array{
        NBC("impmet",      93, 15, Estatal(100, 114)),
        NBC("impinm",     108, 15, Estatal(116, 130)),
        Blanks(           123, 157),
    });
inline constexpr Layout kConvDeclarado_2008{"ConvDelEstatal_2008.ConvertirDeclarado", 279,
                                            kCamposDeclaradoEstatal_2008};
static_assert(FaultyField(kConvDeclarado_2008) < 0);

inline constexpr auto kCamposDeclaradoEstatal_2007 = Join(
    CabeceraEstatal(kTipoEstatal), std::array{T("claveopo", 20, 1, Calculado(kClave))},
    kDeclaradoSinSigno, std::array{T("provpais", 71, 5, Calculado(kProvPais))},
    kImporteSinSigno_2008, std::array{Blanks(93, 157)});
inline constexpr Layout kConvDeclarado_2007{"ConvDelEstatal_2007.ConvertirDeclarado", 249,
                                            kCamposDeclaradoEstatal_2007};
static_assert(FaultyField(kConvDeclarado_2007) < 0);

}  // namespace zerbal::fileformat

#endif  // ZERBAL_FILEFORMAT_LAYOUT_CONV_REG2_H_
