// cDatosGenerales: what the client shows around the records. Descriptions
// of the codes stored in the data (operation keys, provinces, street types,
// countries) in Spanish (lngIdioma 0) or Basque (any other value), read from
// the lookup database (mdblec); the user's settings, kept in the data
// database (mdbmod); the checks of tax identifiers; queries on the lookup
// database; and the number of declarants.
//
// No method traps errors: engine errors reach the client unchanged, and the
// database stays open after one.

#ifndef ZERBAL_DATOS_GENERALES_H_
#define ZERBAL_DATOS_GENERALES_H_

#include <cstdint>
#include <string>

#include "zerbal/path_properties.h"
#include "zerbal/variant.h"

namespace zerbal {

class cDatosGenerales : public PathProperties {
 public:
  // Whether Cadena is a valid tax number of an intra-community operator of
  // country strPais (two letters), as the validation component
  // "Brevandol.cMiscelaneos" judges it.
  bool ValidaNifIntra(const std::string& Cadena, const std::string& strPais);

  // The number of declarants.
  int32_t NumeroDeclarantes();

  // The rows of the query strCadena on the lookup database, as a table
  // (column, row) of strings; Null when it gives no rows.
  Variant CargarResultado(const std::string& strCadena);

  // Single-code lookups: the description in upper case, "" for an unknown
  // code. A country code outside 16 bits (-32,768 to 32,767) raises 6.
  std::string ObtenerDescriVia(const std::string& strCod, int32_t lngIdioma);
  std::string ObtenerNombreProvincia(const std::string& strCod, int32_t lngIdioma);
  // strMoneda does not change the result.
  std::string ObtenerDesClave(const std::string& strCod, const std::string& strMoneda,
                              int32_t lngIdioma);
  // Every operation key with its description as stored (not upper-cased): a
  // table of codigo and description; Null when there is none.
  Variant ObtenerDescripciones(int32_t lngIdioma);
  std::string ObtenerDesPais(int32_t lngCodPais, int32_t lngIdioma);
  std::string ObtenerNombrePaisIntra(const std::string& strCod, int32_t lngIdioma);

  // The first column of row 1 of the lookup tgeneral when btRegistro is 1,
  // of row 2 for any other value (3021 when there is no such row).
  std::string RecogerRutaURL(uint8_t btRegistro);

  // Whether Cadena is a valid Spanish NIF of any kind; with blnSinLetra
  // also a number written without its control character.
  bool ValidaNifCif(const std::string& Cadena, bool blnSinLetra = false);

  // The language of the interface, trimmed ("C" when there is no settings
  // row), and the online-update setting (0 when there is none).
  std::string ObtenerIdioma();
  int16_t ObtenerActOnline();
  // Save them into every settings row (none: nothing changes). A language
  // holding an apostrophe fails with the engine's error.
  void CambiarIdioma(const std::string& sidioma);
  Variant GuardarActOnline(int16_t intActOnline);  // always Empty

  // The address of the online update (URLAct of the lookup tgeneral), "" when
  // there is none.
  std::string ObtenerURLAct();
};

}  // namespace zerbal

#endif  // ZERBAL_DATOS_GENERALES_H_
