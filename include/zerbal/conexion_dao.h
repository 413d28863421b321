// cConexionDAO: the connection to the two databases.
//
// Every read and write of either database goes through the shared instance
// of the calling thread, Conexion(). It holds one workspace and up to two
// open databases, the data database and the lookup database, and a selector
// (set through mdb) that says which of the two the next open, statement,
// query or close addresses. Because the selector lives in the shared
// instance, the last mdb assignment on a thread decides for every later
// call on that thread.
//
// Errors of CrearWorkSpace, AbrirBD, Cerrar, execute and openRecordset are
// raised unchanged. The busy pointer (platform.h) is turned on at the start
// of CrearWorkSpace, AbrirBD, execute and openRecordset and off again only
// when they succeed.

#ifndef ZERBAL_CONEXION_DAO_H_
#define ZERBAL_CONEXION_DAO_H_

#include <cstdint>
#include <memory>
#include <string>

#include "zerbal/bd.h"
#include "zerbal/recordset.h"

namespace zerbal {

class cConexionDAO {
 public:
  cConexionDAO();
  // Closes the data database, the lookup database and the workspace, in that
  // order, ignoring every error.
  ~cConexionDAO();
  cConexionDAO(const cConexionDAO&) = delete;
  cConexionDAO& operator=(const cConexionDAO&) = delete;

  // Kept for the client; nothing in the library reads it.
  const std::string& Ddname() const;
  void Ddname(std::string value);

  // Selects the database of the next operations: 0 the data database, any
  // other value the lookup database.
  void mdb(int32_t value);

  // A new workspace ("wrk", user "admin", empty password, type 2); the one
  // held before is dropped, not closed.
  void CrearWorkSpace();

  // On the shared instance Conexion(), whichever instance it is called on:
  // CrearWorkSpace, then AbrirBD(sdbname). No handler of its own.
  void InicializaBD(const std::string& sdbname);

  // Opens the file in the held workspace (not exclusive, not read-only, no
  // connect string) as the selected database, dropping the one held there.
  void AbrirBD(const std::string& m_dbname);

  // Closes every recordset still open on the selected database, then the
  // database; the workspace and the other database stay.
  void Cerrar();

  // Runs one action statement on the selected database; `i` has no effect.
  void execute(const std::string& sql, int16_t i = 0);

  // Runs one query on the selected database; `Tipo` has no effect: every
  // query gives the same kind of recordset. The caller owns it.
  Recordset openRecordset(const std::string& sql, int16_t Tipo = 0);

 private:
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

// The shared connection of the calling thread, created on first use and
// closed when the thread ends.
cConexionDAO& Conexion();

}  // namespace zerbal

#endif  // ZERBAL_CONEXION_DAO_H_
