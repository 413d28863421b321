// Pesetas and euro cents. Amounts are stored as whole euro cents; a
// declaration kept in pesetas holds whole pesetas. The export of a peseta
// declaration and the import of a peseta file into a euro declaration
// convert them with the one rule here.

#ifndef ZERBAL_FILEFORMAT_PESETAS_H_
#define ZERBAL_FILEFORMAT_PESETAS_H_

#include <cmath>

namespace zerbal::fileformat {

inline constexpr double kPesetasPorEuro = 166.386;

// Round(pesetas / 166.386, 2) * 100: whole euro cents, halves to the even
// neighbour (the default rounding of nearbyint).
inline double CentimosDePesetas(double pesetas) {
  return std::nearbyint(pesetas / kPesetasPorEuro * 100);
}

}  // namespace zerbal::fileformat

#endif  // ZERBAL_FILEFORMAT_PESETAS_H_
