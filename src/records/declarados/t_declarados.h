// cTDeclarados: the gateway of table tOperadores, one row per declared third
// party and operation of a declaration. It holds one row as properties (the
// slots below; the property of column ejerimpmet is called ejerimp) and
// builds the statements that read and write the table.
//
// Every statement runs through the shared connection on whatever database
// is selected there (the caller opens the data database first). Errors are
// raised unchanged, except by the three lists, which put
// "cTDeclarados.<operation> " in front of the description.
//
// Declarations (cTDeclaraciones) use Borrar, DuplicarDeclarados,
// ObtenerTotalOperaciones and ObtenerTotalDeclaradosVarDtes.

#ifndef ZERBAL_RECORDS_DECLARADOS_T_DECLARADOS_H_
#define ZERBAL_RECORDS_DECLARADOS_T_DECLARADOS_H_

#include <array>
#include <cstdint>

#include "records/declarados/table_row.h"
#include "zerbal/variant.h"

namespace zerbal::records {

class cTDeclarados : public TableRow {
 public:
  // Property slots. Setter rules (Let): razon stores an empty text as one
  // blank and protects apostrophes; nifo, claveopo, claverep, opeseg,
  // opearr and the five 2014 texts store an empty text as one blank; paiso
  // and the numbers are stored unchanged.
  enum Slot : int {
    codope, coddeclar, provo, paiso, nifo, razon, claveopo, importe,
    impopeT1, impopeT2, impopeT3, impopeT4, impmet, impinm, impanudevopecaj,
    impmobT1, impmobT2, impmobT3, impmobT4, ejerimp, claverep, opeseg, opearr,
    siglaspaisintra, nifpaisintra, opeivacaja, opeinvsujpas, operegposadu,
    kSlots
  };

  // The record order of the save buffer (index i sets slot kRecord[i]); the
  // load buffer and the copy read the same order without codope.
  static const std::array<int, kSlots> kRecord;

  cTDeclarados();

  // Deletes every row of declaration `lngCodDecla`. Returns true.
  bool Borrar(int32_t lngCodDecla);

  // True when another row (codope differs) of declaration coddeclar has the
  // same nifo, claveopo, opearr, opeseg, claverep, ejerimp, opeivacaja,
  // opeinvsujpas and operegposadu.
  bool DeclaradosCoincidentes();

  // Inserts the row (the engine numbers codope). Returns true.
  bool Insertar();
  // The highest codope, 0 for an empty table: the key of a row just added.
  int32_t MaxDeclarado();
  // Updates the row codope when it is 1 or more (true); false, running
  // nothing, otherwise.
  bool Modificar();

  // Lists of declaration coddeclar (CargarArray tables, Null for none):
  // codope, nifo, razon, claveopo, importe by codope; and every column,
  // codope first, with claverep, opeseg, opearr before impmet, impinm.
  Variant ObtenerDeclarados();
  Variant ObtenerDeclaradosOpe();
  // Row codope as a record buffer 0 to 27 (the save order without codope,
  // element 27 empty); Null when it does not exist.
  Variant CargarDeclarado();
  // Deletes row codope. Returns true.
  bool EliminarDeclarado();

  // True when declaration `intCodDecla` has rows, or when any row of any
  // declaration has a value in a 2014 column.
  bool SeImportanTodos(int16_t intCodDecla);

  // Copies every row of declaration `lngOrigen` (a declaration of year
  // `lngEjerOrg`) into declaration `lngDestino` of year `lngEjerDes`,
  // adapting amounts, skipped rows and country codes to that year
  // (duplicar_declarados.cc). No transaction: a failure keeps the rows
  // already written and is raised unchanged. The properties are used as
  // working storage.
  void DuplicarDeclarados(int32_t lngDestino, int32_t lngOrigen, int32_t lngEjerOrg,
                          int32_t lngEjerDes);

  // Per operation key of declaration coddeclar: a table of claveopo, the
  // sum of importe and the number of rows; Null for none.
  Variant ObtenerTotalOperaciones();
  // The same over the declarations of year `lngEjercicio` of the declarants
  // whose codes are the elements of the one-dimensional `vBuffer`. An empty
  // list raises 5; a list that is no array raises 13.
  Variant ObtenerTotalDeclaradosVarDtes(const Variant& vBuffer, int32_t lngEjercicio);
};

}  // namespace zerbal::records

#endif  // ZERBAL_RECORDS_DECLARADOS_T_DECLARADOS_H_
