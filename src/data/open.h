// The opening every public method starts with: select the database on the
// shared connection, then initialise it with the client's path.

#ifndef ZERBAL_DATA_OPEN_H_
#define ZERBAL_DATA_OPEN_H_

#include <string>

#include "zerbal/conexion_dao.h"

namespace zerbal {

inline void OpenDataDatabase(const std::string& mdbmod) {
  Conexion().mdb(bd347mod);
  Conexion().InicializaBD(mdbmod);
}

inline void OpenLookupDatabase(const std::string& mdblec) {
  Conexion().mdb(bd347lec);
  Conexion().InicializaBD(mdblec);
}

}  // namespace zerbal

#endif  // ZERBAL_DATA_OPEN_H_
