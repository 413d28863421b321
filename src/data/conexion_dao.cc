#include "zerbal/conexion_dao.h"

#include <optional>
#include <type_traits>
#include <utility>

#include "base/convert.h"
#include "base/raise.h"
#include "data/database.h"
#include "zerbal/platform.h"

namespace zerbal {

struct cConexionDAO::Impl {
  std::string ddname;
  std::string selector;  // decimal text of the last BD value given to mdb
  std::optional<data::Workspace> workspace;
  std::optional<data::Database> data_db;
  std::optional<data::Database> lookup_db;

  std::optional<data::Database>& Selected() {
    return Val(selector) == 0 ? data_db : lookup_db;
  }

  data::Database& SelectedOpen() {
    std::optional<data::Database>& db = Selected();
    if (!db) Raise(errc::kObjectNotSet);
    return *db;
  }
};

namespace {

// Runs an engine operation between busy-on and busy-off; a failure leaves
// the hourglass showing, as the original does.
template <typename F>
decltype(auto) Busy(F&& operation) {
  CurrentBusyPointer().BusyOn();
  if constexpr (std::is_void_v<decltype(operation())>) {
    operation();
    CurrentBusyPointer().BusyOff();
  } else {
    auto result = operation();
    CurrentBusyPointer().BusyOff();
    return result;
  }
}

}  // namespace

cConexionDAO::cConexionDAO() : impl_(std::make_unique<Impl>()) {}

cConexionDAO::~cConexionDAO() {
  CurrentBusyPointer().BusyOn();
  for (std::optional<data::Database>* db : {&impl_->data_db, &impl_->lookup_db}) {
    try {
      if (*db) (*db)->Close();
    } catch (...) {
    }
  }
  if (impl_->workspace) impl_->workspace->Close();
  CurrentBusyPointer().BusyOff();
}

const std::string& cConexionDAO::Ddname() const { return impl_->ddname; }
void cConexionDAO::Ddname(std::string value) { impl_->ddname = std::move(value); }

void cConexionDAO::mdb(int32_t value) { impl_->selector = std::to_string(value); }

void cConexionDAO::CrearWorkSpace() {
  Busy([&] { impl_->workspace.emplace("wrk", "admin", "", 2); });
}

void cConexionDAO::InicializaBD(const std::string& sdbname) {
  Conexion().CrearWorkSpace();
  Conexion().AbrirBD(sdbname);
}

void cConexionDAO::AbrirBD(const std::string& m_dbname) {
  Busy([&] {
    if (!impl_->workspace) Raise(errc::kObjectNotSet);
    data::Database opened = impl_->workspace->OpenDatabase(m_dbname, false, false, "");
    impl_->Selected() = std::move(opened);
  });
}

void cConexionDAO::Cerrar() { impl_->SelectedOpen().Close(); }

void cConexionDAO::execute(const std::string& sql, int16_t i) {
  Busy([&] { impl_->SelectedOpen().Execute(sql, i); });
}

Recordset cConexionDAO::openRecordset(const std::string& sql, int16_t Tipo) {
  return Busy([&] { return impl_->SelectedOpen().OpenRecordset(sql, Tipo); });
}

cConexionDAO& Conexion() {
  thread_local cConexionDAO shared;
  return shared;
}

}  // namespace zerbal
