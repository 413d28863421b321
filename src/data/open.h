// The opening every public method starts with: select the database on the
// shared connection, then initialise it with the client's path.

#ifndef ZERBAL_DATA_OPEN_H_
#define ZERBAL_DATA_OPEN_H_

#include <string>
#include <string_view>

#include "base/raise.h"
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

// The course of most public methods: open the data database, do the work,
// close the database; an error anywhere is raised again with `prefix` (and
// leaves the database open, as the next call's opening replaces it).
template <typename F>
auto InDataDatabase(std::string_view prefix, const std::string& mdbmod, F&& work) {
  return WithPrefix(prefix, [&] {
    OpenDataDatabase(mdbmod);
    auto result = work();
    Conexion().Cerrar();
    return result;
  });
}

}  // namespace zerbal

#endif  // ZERBAL_DATA_OPEN_H_
