// cTArrendamientos: the gateway of table tArrendamientos, one row per
// business premises that a declarant rents out. It holds one row as
// properties (the slots below) and builds the statements that read and
// write the table.
//
// Every statement runs through the shared connection on whatever database
// is selected there (the caller opens the data database first). Errors are
// raised unchanged, except by CargarArrendamiento and the two lists, which
// put "cTArrendamientos.<operation> " in front of the description.
//
// Declarations (cTDeclaraciones) use Borrar, DuplicarArrendamientos and
// ObtenerTotalArrendamientos.

#ifndef ZERBAL_RECORDS_ARRENDAMIENTOS_T_ARRENDAMIENTOS_H_
#define ZERBAL_RECORDS_ARRENDAMIENTOS_T_ARRENDAMIENTOS_H_

#include <array>
#include <cstdint>

#include "records/declarados/table_row.h"
#include "zerbal/variant.h"

namespace zerbal::records {

class cTArrendamientos : public TableRow {
 public:
  // Property slots. Setter rules (Let): nifa stores an empty text as one
  // blank; razon, municipioa, refcat, viaa, domicilioa, escaleraa, pisoa
  // and puertaa also protect apostrophes; paiso and the numbers are stored
  // unchanged.
  enum Slot : int {
    codarr, coddeclar, prova, provi, paiso, nifa, razon, importe, municipioa, refcat, viaa,
    domicilioa, numeroa, escaleraa, pisoa, puertaa,
    kSlots
  };

  // The order of the save buffer: index i sets slot kRecord[i].
  static const std::array<int, kSlots> kRecord;

  cTArrendamientos();

  // Deletes every rental of declaration `lngCodDecla`. Returns true.
  bool Borrar(int32_t lngCodDecla);

  // Copies every rental of declaration `lngOrigen` into declaration
  // `lngDestino`, in codarr order, with the country code in the form of year
  // `lngEjerDes` (numeric before 2008, two letters from 2008). No row is
  // left out and no amount changes. No transaction: a failure keeps the rows
  // already written. The properties are used as working storage.
  void DuplicarArrendamientos(int32_t lngDestino, int32_t lngOrigen, int32_t lngEjerDes);

  // Rental codarr as a record buffer 0 to 15: coddeclar, provi, paiso,
  // nifa, razon, importe, municipioa, refcat, viaa, domicilioa, numeroa,
  // escaleraa, pisoa, puertaa, prova, element 15 empty; Null when missing.
  Variant CargarArrendamiento();
  // Tables of declaration coddeclar (Null for none): codarr, nifa, razon,
  // municipioa, importe by codarr; and the record's columns from codarr
  // to puertaa (without prova) by razon.
  Variant ObtenerArrendamientos();
  Variant ObtenerTodosLosArr();

  // Inserts the row (the engine numbers codarr). Returns true.
  bool Insertar();
  // The highest codarr, 0 for an empty table: the key of a row just added.
  int32_t MaxArrendamiento();
  // Updates rental codarr when it is 1 or more (true); false, running
  // nothing, otherwise.
  bool Modificar();
  // Deletes rental codarr. Returns true.
  bool EliminarArrendamiento();

  // The number of rentals of declaration coddeclar; above 32,767 raises 6.
  int16_t ObtenerTotalArrendamientos();
};

}  // namespace zerbal::records

#endif  // ZERBAL_RECORDS_ARRENDAMIENTOS_T_ARRENDAMIENTOS_H_
