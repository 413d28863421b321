// The four groups of columns of the upgrade, each known by its marker
// column, in the order they run.

#ifndef ZERBAL_UPGRADE_GRUPOS_H_
#define ZERBAL_UPGRADE_GRUPOS_H_

#include <string_view>

#include "data/database.h"
#include "data/table_defs.h"

namespace zerbal::upgrade {

struct Grupo {
  int numero;
  std::string_view tabla;     // the table definition it works on
  std::string_view marcador;  // upper case; the group is skipped when present
  // The group's changes: its columns created and filled. Raises on any
  // error; what it did is then undone by the caller's transaction.
  void (*cambios)(data::Database& db, data::TableDef& tabla);
};

extern const Grupo kGrupos[4];

// What the message box shows when a group fails.
inline constexpr std::string_view kMensajeGrupo =
    "Se ha producido un error la creación de los campos de la tabla T10_TIPOLOGIA8";

// Whether `tabla` has a column named like `marcador` (upper-cased names
// compared).
bool TieneCampo(const data::TableDef& tabla, std::string_view marcador);

}  // namespace zerbal::upgrade

#endif  // ZERBAL_UPGRADE_GRUPOS_H_
