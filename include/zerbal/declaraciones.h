// cDeclaraciones: a declarant's declarations, one per fiscal year and
// currency ("E" euro, "P" peseta), each owning its declared operations and
// business-premises rentals.
//
// Every method opens the data database (mdbmod) on the calling thread's
// shared connection. Errors carry the prefix "cDeclaraciones.<method> "
// (ObtenerDeclaraciones: "cDatosGeneralT.ObtenerDeclaraciones ";
// ObtenerEjercicioDcion: "clDeclaraciones.ObtenerEjercicioDcion "), except
// EliminarDeclaracion and DuplicarDeclaracion, which raise them unchanged.

#ifndef ZERBAL_DECLARACIONES_H_
#define ZERBAL_DECLARACIONES_H_

#include <cstdint>
#include <string>

#include "zerbal/path_properties.h"
#include "zerbal/variant.h"

namespace zerbal {

class cDeclaraciones : public PathProperties {
 public:
  // The declarant's declarations in year order: a table (0 to 5, 0 to r),
  // rows 1 to r holding coddecla and ejercicio (32-bit), moneda, and the
  // numbers of operations and of rentals (16-bit); Null when there are none.
  Variant ObtenerDeclaraciones(int32_t lngDeclarante);

  // Deletes the declaration with its operations and rentals; a failure part
  // way leaves what was deleted deleted. Leaves the database open.
  void EliminarDeclaracion(int32_t lngDeclaracion);

  // A new declaration for year lngEjerDes in strMoneda with copies of the
  // operations and rentals of lngCodDeclaOrigen (of year lngEjerOrg),
  // converted by the rules of the change of year. Returns the new code;
  // nothing checks that the target year is free. Leaves the database open.
  int32_t DuplicarDeclaracion(int32_t lngEjerOrg, int32_t lngEjerDes, const std::string& strMoneda,
                              int32_t lngCodDeclaOrigen);

  // Always a new declaration; returns its code.
  int32_t GuardarDeclaracion(int32_t lngEjercicio, const std::string& strMoneda,
                             int32_t lngDeclarante);

  // Totals per operation key of a declaration: a table of key, sum of
  // amounts and number of operations; Null without operations.
  Variant ObtenerTotalDeclarados(int32_t lngCodeclar);

  // The number of rentals of a declaration.
  int16_t ObtenerTotalArrendamientos(int32_t lngCodeclar);

  // The code of the declarant's declaration for that year, 0 when none.
  int32_t ObtenerDeclaracion(int32_t lngCodDecl, int32_t lngEjercicio);

  // The latest year and its currency as a table (row 1: ejercicio, moneda as
  // strings), or Null. With blnSoloEuros only euro declarations count, and
  // with intEjerMin above 0 only those from 2002 (whatever its value).
  Variant MaxEjerMon(bool blnSoloEuros, int16_t intEjerMin = 0);

  // The currency and the year (as decimal text) of a declaration; an
  // unknown code raises 3021.
  std::string ObtenerMonedaDcion(const Variant& lngCodDcion);
  std::string ObtenerEjercicioDcion(const Variant& lngCodDcion);

  // Totals per operation key over the year's declarations of the declarants
  // whose codes vBuffer lists (indexes 0 to its upper bound).
  Variant ObtenerTotalDeclaradosVarDtes(const Variant& vBuffer, int32_t lngEjercicio);
};

}  // namespace zerbal

#endif  // ZERBAL_DECLARACIONES_H_
