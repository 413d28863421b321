// cTLecMDB: the reader of the lookup database. Its properties say what to
// look up and in which language (datTIdioma 0 Spanish, any other value
// Basque); each reader runs its query on the selected database.

#ifndef ZERBAL_REFERENCE_T_LEC_MDB_H_
#define ZERBAL_REFERENCE_T_LEC_MDB_H_

#include <cstdint>
#include <string>

#include "zerbal/variant.h"

namespace zerbal::reference {

class cTLecMDB {
 public:
  int32_t datTIdioma = 0;
  std::string datTMoneda;  // kept; no query uses it
  std::string datTClaveCod;
  int16_t datTPaisCod = 0;
  std::string datTPaisIntra;
  std::string datTViaCod;
  std::string datTProvCod;

  // Single-code lookups: the description upper-cased, "" when the code is
  // unknown; a Null description raises 94. Codes go into the statements
  // between apostrophes, as they are.
  std::string ObtenerDesClave();
  std::string ObtenerNombreProvincia();
  std::string ObtenerDescriVia();
  std::string ObtenerDesPais();
  std::string ObtenerNombrePaisIntra();
  // Every operation key with its description as stored: a table (codigo,
  // description), Null when there is none.
  Variant ObtenerDescripciones();
  // Field 0 of row 1 of the lookup tgeneral for btRegistro 1, of row 2 for
  // any other value; a missing row raises 3021.
  std::string RecogerRutaURL(uint8_t btRegistro);
  // URLAct of the first row, "" when there is none.
  std::string URLAct();

 private:
  bool Spanish() const { return datTIdioma == 0; }
};

}  // namespace zerbal::reference

#endif  // ZERBAL_REFERENCE_T_LEC_MDB_H_
