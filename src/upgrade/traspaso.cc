#include "zerbal/traspaso.h"

#include <optional>
#include <string_view>

#include "data/database.h"
#include "data/table_defs.h"
#include "data/transaction.h"
#include "upgrade/copia_seguridad.h"
#include "upgrade/grupos.h"
#include "zerbal/platform.h"

namespace zerbal {
namespace {

// One group: skipped when its marker is there; otherwise the backup copy
// (taken by the first group that changes something) and the changes, as
// one transaction. A failed group is undone whole and its message shown,
// and the upgrade goes on with the next group.
void Aplicar(const upgrade::Grupo& grupo, data::Database& db, data::TableDef& tabla,
             const std::string& copia, const std::string& mdbmod) {
  try {
    data::Transaction unidad(db);
    tabla.Refresh();
    if (upgrade::TieneCampo(tabla, grupo.marcador)) return;
    // The groups go on whatever the copy answers, as the message says the
    // application is not to be used after a failed copy.
    upgrade::CopiaSeguridad(mdbmod, copia);
    grupo.cambios(db, tabla);
    unidad.Commit();
  } catch (...) {
    try {
      tabla.Refresh();
    } catch (...) {
      // The table is read again by the next group, which reports it.
    }
    CurrentCriticalMessageBox().Show(std::string(upgrade::kMensajeGrupo));
  }
}

}  // namespace

bool cTraspaso::Traspaso() {
  const std::string copia = mdbPath_ + std::string(upgrade::kCopiaSeguridad);
  data::Workspace workspace("Traspaso", "admin", "", 2);
  data::Database db = workspace.OpenDatabase(mdbmod_, false, false, "");
  // The upgrade writes: a database it cannot write now is refused here,
  // before anything is created beside it.
  data::CheckWritable(db);
  const data::TableDefs tablas(db);
  // toperadores is taken once for groups 1 to 3, then tarrendamientos.
  std::optional<data::TableDef> tabla;
  std::string_view tomada;
  for (const upgrade::Grupo& grupo : upgrade::kGrupos) {
    if (grupo.tabla != tomada) {
      tabla.emplace(tablas.Item(grupo.tabla));
      tomada = grupo.tabla;
    }
    Aplicar(grupo, db, *tabla, copia, mdbmod_);
  }
  db.Execute("update tarrendamientos set prova = 0 where prova = 99");
  db.Close();
  upgrade::BorrarCopiaSeguridad(copia);
  return false;
}

}  // namespace zerbal
