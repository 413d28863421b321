// Conversions of state-layout lines: the head every converted line shares,
// and the declarant line. Texts lose their surrounding blanks (TT); numbers
// go through BC, so anything but digits and "-" reads as 0 (NBC). The state
// layout carries no totals, so the converted declarant line has them at
// zero, and it is 348 characters long, not a record's length.

#ifndef ZERBAL_FILEFORMAT_LAYOUT_CONV_DTE_H_
#define ZERBAL_FILEFORMAT_LAYOUT_CONV_DTE_H_

#include <array>
#include <string_view>

#include "fileformat/layout.h"

namespace zerbal::fileformat {

// Output 1 to 19 from state 1 to 17; the province is always ours.
constexpr std::array<Field, 5> CabeceraEstatal(Field tipo) {
  return {
      tipo,
      NBC("modelo",      2,  3, Estatal(2, 4)),
      NBC("ejercicio",   5,  4, Estatal(5, 8)),
      Const(9, "20"),
      TT("dni_cifd",    11,  9, Estatal(9, 17)),
  };
}
inline constexpr Field kTipoEstatal = NBC("tipo", 1, 1, Estatal(1, 1));

inline constexpr std::string_view kNueveCeros = "000000000";
inline constexpr std::string_view kQuinceCeros = "000000000000000";

// Count and sum of the keys "A" to "E", all zeros.
constexpr std::array<Field, 10> TotalesACero() {
  std::array<Field, 10> campos{};
  for (int16_t clave = 0; clave < 5; ++clave) {
    campos[2 * clave] = Const(static_cast<int16_t>(60 + 24 * clave), kNueveCeros);
    campos[2 * clave + 1] = Const(static_cast<int16_t>(69 + 24 * clave), kQuinceCeros);
  }
  return campos;
}

inline constexpr auto kDteEstatal = Join(CabeceraEstatal(kTipoEstatal), std::array{
    TT("nombred",     20, 40, Estatal(18, 57)),
}, TotalesACero());

inline constexpr auto kCamposDteEstatal =
    Join(kDteEstatal, std::array{Const(180, "E"), Blanks(181, 168)});
inline constexpr Layout kConvDte{"ConvertirDte", 348, kCamposDteEstatal};
static_assert(FaultyField(kConvDte) < 0);

// 2007: "P" at 180 when state 108-110 holds "347".
inline constexpr Source kMonedaEstatal_2007 = Estatal(108, 110);
inline constexpr auto kCamposDteEstatal_2007 = Join(kDteEstatal, std::array{
    T("moneda",      180,  1, Calculado(kMonedaDte)),
    Blanks(          181, 168),
});
inline constexpr Layout kConvDte_2007{"ConvDelEstatal_2007.ConvertirDte", 348,
                                      kCamposDteEstatal_2007};
static_assert(FaultyField(kConvDte_2007) < 0);

}  // namespace zerbal::fileformat

#endif  // ZERBAL_FILEFORMAT_LAYOUT_CONV_DTE_H_
