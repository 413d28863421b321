// cDeclarado: the declared operations, one row per third party and
// operation key of a declaration.
//
// Save buffer, one dimension 0 to 27: 0 codope (0 for a new row),
// 1 coddeclar, 2 provo, 3 paiso, 4 nifo, 5 razon, 6 claveopo, 7 importe,
// 8 impmet, 9 impinm, 10 claverep, 11 opeseg, 12 opearr, 13-16 impopeT1-4,
// 17-20 impmobT1-4, 21 ejerimpmet, 22 siglaspaisintra, 23 nifpaisintra,
// 24 opeivacaja, 25 opeinvsujpas, 26 operegposadu, 27 impanudevopecaj.
// Codes, provo and ejerimpmet are converted to 32-bit integers, amounts to
// doubles (whole cents), the rest to text. An empty text is stored as one
// blank (paiso as given); an apostrophe in razon is stored as "´". Any
// other text with an apostrophe raises 3075 and stores nothing.
//
// Values read back are strings (numbers in their invariant text, "´"
// turned back into "'"), and a result without rows is Null.
//
// Every method opens the data database (mdbmod) on the calling thread's
// shared connection and closes it on success, except GuardarDeclarado,
// which leaves it open. Errors of every method but GuardarDeclarado carry
// the method's prefix (listed below) before the description received.

#ifndef ZERBAL_DECLARADO_H_
#define ZERBAL_DECLARADO_H_

#include <cstdint>
#include <string>

#include "zerbal/path_properties.h"
#include "zerbal/variant.h"

namespace zerbal {

class cDeclarado : public PathProperties {
 public:
  // True when declaration strCodDecl (its numeric value: a text that is no
  // number raises 13) holds a row other than lngCodOpe (0: none excluded)
  // with the same identifier, key, flags, cash year and 2014 flags.
  // Empty arguments match rows stored with empty values.
  // Prefix "cdeclarado.DeclaradosCoincidentes ".
  bool DeclaradosCoincidentes(const std::string& strCodDecl, const std::string& strNif,
                              const std::string& strClaveOp, const std::string& strOptArr,
                              const std::string& strOptSeg, const std::string& strOptRep,
                              int32_t lngCodOpe, int32_t lngEjerImp,
                              const std::string& opeivacaja, const std::string& opeinvsujpas,
                              const std::string& operegposadu);

  // Inserts the buffer as a new row when element 0 is 0 and returns the
  // new codope; otherwise updates row element 0 (nothing happens below 1)
  // and returns element 0.
  int32_t GuardarDeclarado(const Variant& vBufferResultado);

  // Table (column, row) of the declaration's rows by codope: 0 codope,
  // 1 nifo, 2 razon, 3 claveopo, 4 importe.
  // Prefix "cdeclarado.ObtenerDeclarados ".
  Variant ObtenerDeclarados(int32_t lngDeclaracion);

  // Table of every column of the declaration's rows, in the engine's order:
  // 0 codope, 1 coddeclar, 2 provo, 3 paiso, 4 nifo, 5 razon, 6 claveopo,
  // 7 importe, 8 claverep, 9 opeseg, 10 opearr, 11 impmet, 12 impinm,
  // 13-16 impopeT1-4, 17-20 impmobT1-4, 21 ejerimpmet, 22 siglaspaisintra,
  // 23 nifpaisintra, 24 opeivacaja, 25 opeinvsujpas, 26 operegposadu,
  // 27 impanudevopecaj. Prefix "cdeclarado.ObtenerDeclaradosOpe ".
  Variant ObtenerDeclaradosOpe(int32_t lngDeclaracion);

  // The same list, unfiltered. Prefix
  // "cdeclarado.ObtenerDeclaradosSinValoresEnCamposNuevos2014 ".
  Variant ObtenerDeclaradosSinValoresEnCamposNuevos2014(int32_t lngDeclaracion);

  // Row lngDeclarado as the save buffer's elements 1 to 27 moved down to
  // 0 to 26, element 27 empty. Prefix "cdeclarado.CargarDeclarado ".
  Variant CargarDeclarado(int32_t lngDeclarado);

  // Prefix "clDeclarados.EliminarDeclarado ".
  void EliminarDeclarado(int32_t lngDeclarado);

  // True when the declaration has rows, or when any row of any declaration
  // has a value in a 2014 column (siglaspaisintra, opeivacaja,
  // opeinvsujpas, operegposadu, or impanudevopecaj above 0). The code is a
  // 16-bit number: outside -32,768 to 32,767 it raises 6 (overflow), with
  // no prefix and before anything is opened, as the conversion of the
  // argument would. Prefix "clDeclarados.SeImportanTodos ".
  bool SeImportanTodos(int32_t lngDeclaracion);
};

}  // namespace zerbal

#endif  // ZERBAL_DECLARADO_H_
