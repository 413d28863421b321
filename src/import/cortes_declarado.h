// The fields of an operation line (record 2) of every period, each cut from
// the layout field that the export writes it from.

#ifndef ZERBAL_IMPORT_CORTES_DECLARADO_H_
#define ZERBAL_IMPORT_CORTES_DECLARADO_H_

#include <array>
#include <span>

#include "fileformat/layout_reg2.h"
#include "import/cortes.h"

namespace zerbal::Importacion {

// Fields 1 to 10 in every period: the head, the key and the party.
constexpr std::array<Corte, 10> CortesParte(std::span<const fileformat::Field> c) {
  return {
      Cortado("Modelo", c, "347"),        Cortado("Ejercicio", c, "ejercicio"),
      Cortado("CodProv", c, "cod"),       Cortado("NIF", c, "dni_cifd"),
      Cortado("ClaveOpe", c, "claveopo"), Cortado("NIF", c, "nifo"),
      Cortado("Nombre", c, "razon"),      Cortado("ClaveRep", c, "claverep"),
      Cortado("Prov", c, "provo"),        Cortado("Pais", c, "paiso"),
  };
}

// Record 2 of 2011 on: declarations of 2011 to 2013 take the first 24
// fields (up to the quarters), those of 2014 on all 30.
constexpr auto CortesDeclarado(std::span<const fileformat::Field> c) {
  return fileformat::Join(CortesParte(c), std::array{
      Cortado("ImpOpe", c, "importe"),      Cortado("ClaveSeg", c, "opeseg"),
      Cortado("ClaveArr", c, "opearr"),     Cortado("ImpMet", c, "impmet"),
      Cortado("ImpTra", c, "impinm"),       Cortado("EjerMet", c, "ejerimpmet"),
      Cortado("ImpOpe1t", c, "impopet1"),   Cortado("ImpTra1t", c, "impmobt1"),
      Cortado("ImpOpe2t", c, "impopet2"),   Cortado("ImpTra2t", c, "impmobt2"),
      Cortado("ImpOpe3t", c, "impopet3"),   Cortado("ImpTra3t", c, "impmobt3"),
      Cortado("ImpOpe4t", c, "impopet4"),   Cortado("ImpTra4t", c, "impmobt4"),
      Cortado("SigIntra", c, "siglaspaisintra"), Cortado("NifIntra", c, "nifpaisintra"),
      Cortado("OpeCaja", c, "opeivacaja"),  Cortado("OpeInve", c, "opeinvsujpas"),
      Cortado("OpeRegm", c, "operegposadu"), Cortado("ImpOpeCaja", c, "impanudevopecaj"),
  });
}
inline constexpr auto kCortesDeclarado_2014 = CortesDeclarado(fileformat::kCamposReg2_2014);
inline constexpr auto kCortesDeclarado_2011 = std::span(kCortesDeclarado_2014).first<24>();

// Record 2 of 2010 and before: one amount (Importe) up to 2007; from 2008
// the cash amount and the transfers (ImpInm) too.
constexpr auto CortesDeclaradoSinSigno(std::span<const fileformat::Field> c) {
  return fileformat::Join(CortesParte(c), std::array{Cortado("Importe", c, "importe"),
                                                     Cortado("ClaveSeg", c, "opeseg"),
                                                     Cortado("ClaveArr", c, "opearr")});
}
inline constexpr auto kCortesDeclarado_2008 =
    fileformat::Join(CortesDeclaradoSinSigno(fileformat::kCamposReg2_2008),
                     std::array{Cortado("ImpMet", fileformat::kCamposReg2_2008, "impmet"),
                                Cortado("ImpInm", fileformat::kCamposReg2_2008, "impinm")});
inline constexpr auto kCortesDeclarado_2007 =
    CortesDeclaradoSinSigno(fileformat::kCamposReg2_2007);

}  // namespace zerbal::Importacion

#endif  // ZERBAL_IMPORT_CORTES_DECLARADO_H_
