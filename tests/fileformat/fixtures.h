// Buffers as the record classes fill them, and a comparison of records that
// names the first character position where they differ.

#ifndef ZERBAL_TESTS_FILEFORMAT_FIXTURES_H_
#define ZERBAL_TESTS_FILEFORMAT_FIXTURES_H_

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/text.h"
#include "testutil.h"
#include "zerbal/variant.h"

namespace zerbal::test {

inline std::string Blanks(int count) { return std::string(count, ' '); }

// The text followed by blanks up to `width` characters (never cut).
inline std::string Pad(const std::string& text, int width) {
  return text + Blanks(width - static_cast<int>(Len(text)));
}

inline const std::string kNombreDte = "Ñandú Etxeberria O'Neill";

// cDeclarante.CargarDeclarante: numbers as Long, element 11 the last digits.
inline Variant Declarante() {
  return Buffer({7, "12345678Z", kNombreDte, "CL", "Kale Nagusia", 12, "", "B", "3", "izq", 20,
                 "5", "Donostia", 943, "123456", "Ane", 0, "654321"});
}

inline const std::string kNombrePres = "Aholkularitza D'Elosegi Ñ S.L.";

// cPresentador.CargarPresentador: 20001 is stored as 1.
inline Variant Presentador() {
  return Buffer({1, "B20456786", kNombrePres, "CL", "Kale Nagusia", 12, "", "", "", "", 20, "1",
                 "Donostia", 943, "6543210", "", 0, ""});
}

inline const std::string kRazon45 = "Talleres O'Donnell Ibáñez eta Zubizarreta SAL";
inline const std::string kRazon40 = "Talleres O'Donnell Ibáñez eta Zubizarret";

// cDeclarado.CargarDeclarado: strings from CargarArray, element 27 empty.
inline Variant Declarado() {
  return Buffer({"15", "28", "", "B20000001", kRazon45, "B", "-1234", "5000", "700", "", "", "X",
                 "11", "-22", "33", "12,50", "1", "2", "3", "4", "2013", "FR", "12345678901", "X",
                 "", "", "-9"},
                1);
}

inline const std::string kRazonArr = "Lonjas Ñ'Bidea SL";

// cArrendamiento.CargarArrendamiento: strings, element 15 empty.
inline Variant Arrendamiento() {
  return Buffer({"15", "20", "", "A20111111", kRazonArr, "-60000", "Hondarribia",
                 "1234567AB1234C0001XY", "CL", "Nagusia", "7", "", "2", "A", "20"},
                1);
}

// cDeclaraciones.ObtenerTotalDeclarados: (0 to 3, 0 to rows), rows from 1,
// each key, sum and count as text.
inline Variant Totales(const std::vector<std::vector<std::string>>& rows) {
  Variant t(Array(0, 3, 0, static_cast<int32_t>(rows.size())));
  for (size_t r = 0; r < rows.size(); ++r) {
    for (int32_t c = 0; c < 3; ++c) t(c, static_cast<int32_t>(r + 1)) = rows[r][c];
  }
  return t;
}

// Same characters, or the first 1-based position where they differ.
inline ::testing::AssertionResult SameRecord(const std::string& actual,
                                             const std::string& expected) {
  if (actual == expected) return ::testing::AssertionSuccess();
  int64_t pos = 1;
  while (pos <= Len(expected) && Mid(actual, pos, 1) == Mid(expected, pos, 1)) ++pos;
  return ::testing::AssertionFailure()
         << "length " << Len(actual) << " (expected " << Len(expected) << "), first difference at "
         << pos << ": got [" << Mid(actual, pos, 20) << "] expected [" << Mid(expected, pos, 20)
         << "]";
}

}  // namespace zerbal::test

#endif  // ZERBAL_TESTS_FILEFORMAT_FIXTURES_H_
