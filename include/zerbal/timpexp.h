// cTImpExp: two queries that export and import share. Both run on the data
// database that the caller has already opened on the shared connection
// (Conexion()); they close their recordset and leave the database open.

#ifndef ZERBAL_TIMPEXP_H_
#define ZERBAL_TIMPEXP_H_

#include <cstdint>
#include <string>

#include "zerbal/variant.h"

namespace zerbal {

class cTImpExp {
 public:
  // The declarants with a declaration of that year and currency, by
  // identifier: a table of coddec, dni_cifd, nombred (strings), rows from 1;
  // Null when none. Errors carry the prefix "cTImpExp.ObtenerDeclarantes ".
  Variant ObtenerDeclarantes(int32_t lngEjercicio, const std::string& strMoneda);

  // The number of operation and rental rows of the listed declarants'
  // declarations of that year and currency; strDtes is a comma-separated
  // list of declarant codes, put into the statement as it is. Codes are
  // counted once (an operation and a rental with the same code count once).
  // Errors carry the prefix "cTImpExp.TotalDeclarados ".
  int32_t TotalDeclarados(int32_t lngEjercicio, const std::string& strMoneda,
                          const std::string& strDtes);
};

}  // namespace zerbal

#endif  // ZERBAL_TIMPEXP_H_
