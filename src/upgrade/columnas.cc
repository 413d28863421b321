#include "upgrade/columnas.h"

#include <optional>

#include "base/convert.h"
#include "data/data_schema.h"
#include "data/database.h"
#include "data/table_defs.h"
#include "upgrade/grupos.h"

namespace zerbal::upgrade {
namespace {

// Opened for writing (when the file allows it) so that what a process ended
// in the middle of a change left in the journal is undone first.
data::Database Open(const std::string& mdbmod) {
  data::Workspace workspace("Columnas", "admin", "", 2);
  return workspace.OpenDatabase(mdbmod, false, false, "");
}

// The table definition `name`, or none when the database has no such table.
std::optional<data::TableDef> Tabla(const data::TableDefs& tablas, std::string_view name) {
  for (const std::string& tabla : tablas.Names()) {
    if (UCase(tabla) == UCase(name)) return tablas.Item(tabla);
  }
  return std::nullopt;
}

}  // namespace

std::vector<bool> MarcadoresPresentes(const std::string& mdbmod) {
  const data::Database db = Open(mdbmod);
  const data::TableDefs tablas(db);
  std::vector<bool> presentes;
  for (const Grupo& grupo : kGrupos) {
    const std::optional<data::TableDef> tabla = Tabla(tablas, grupo.tabla);
    presentes.push_back(tabla && TieneCampo(*tabla, grupo.marcador));
  }
  return presentes;
}

std::vector<std::string> ColumnasQueFaltan(const std::string& mdbmod) {
  const data::Database db = Open(mdbmod);
  const data::TableDefs tablas(db);
  std::vector<std::string> faltan;
  for (const data::TableSchema& nueva : data::NewDataSchema()) {
    const std::optional<data::TableDef> tabla = Tabla(tablas, nueva.name);
    for (const data::Column& c : nueva.columns) {
      if (!tabla || !TieneCampo(*tabla, UCase(c.field.name))) {
        faltan.push_back(nueva.name + "." + c.field.name);
      }
    }
  }
  return faltan;
}

}  // namespace zerbal::upgrade
