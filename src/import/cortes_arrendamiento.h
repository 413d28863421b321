// The fields of a rental line (record 3) of every period, each cut from the
// layout field that the export writes it from. The layouts of 2011 to 2013
// place every field as the 180-character one of 2008 to 2010 does, so the
// 2008 table reads both.

#ifndef ZERBAL_IMPORT_CORTES_ARRENDAMIENTO_H_
#define ZERBAL_IMPORT_CORTES_ARRENDAMIENTO_H_

#include <array>
#include <span>

#include "fileformat/layout_reg3.h"
#include "import/cortes.h"

namespace zerbal::Importacion {

// `pais` is the country's field: from 2008 the line has none, and the
// splitter sets it (kPaisArrendamiento).
constexpr std::array<Corte, 17> CortesArrendamiento(std::span<const fileformat::Field> c,
                                                    Corte pais) {
  return {
      Cortado("Modelo", c, "347"),           Cortado("Ejercicio", c, "ejercicio"),
      Cortado("CodProv", c, "cod"),          Cortado("NIF", c, "dni_cifd"),
      Cortado("NIFPRE", c, "nifa"),          Cortado("Nombre", c, "razon"),
      Cortado("Importe", c, "importe"),      Cortado("Prov", c, "provi"),
      pais,                                  Cortado("Municipio", c, "municipioa"),
      Cortado("RefCat", c, "refcat"),        Cortado("Via", c, "viaa"),
      Cortado("Domicilio", c, "domicilioa"), Cortado("Numero", c, "numeroa"),
      Cortado("Escalera", c, "escaleraa"),   Cortado("Piso", c, "pisoa"),
      Cortado("Puerta", c, "puertaa"),
  };
}
inline constexpr int32_t kPaisArrendamiento = 9;

inline constexpr auto kCortesArrendamiento_2014 =
    CortesArrendamiento(fileformat::kCamposReg3_2014, Fijo("Pais"));
inline constexpr auto kCortesArrendamiento_2008 =
    CortesArrendamiento(fileformat::kCamposReg3_2008, Fijo("Pais"));
// Up to 2007 the numeric country code stands at 86-88, where the export
// writes "000" (no foreign country).
inline constexpr auto kCortesArrendamiento_2007 = CortesArrendamiento(
    fileformat::kCamposReg3_2007, Cortado("Pais", fileformat::kCamposReg3_2007, "000"));

}  // namespace zerbal::Importacion

#endif  // ZERBAL_IMPORT_CORTES_ARRENDAMIENTO_H_
