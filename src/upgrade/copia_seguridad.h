// The backup copy of the upgrade, and its removal.

#ifndef ZERBAL_UPGRADE_COPIA_SEGURIDAD_H_
#define ZERBAL_UPGRADE_COPIA_SEGURIDAD_H_

#include <cstdint>
#include <string>
#include <string_view>

namespace zerbal::upgrade {

// The file name of the copy, appended to mdbPath.
inline constexpr std::string_view kCopiaSeguridad = "CopSegQORVMod.mdb";

// What the message box shows when the copy cannot be taken.
inline constexpr std::string_view kMensajeCopia =
    "Se ha producido un error en la copia de seguridad. La aplicación no puede ser utilizada ya "
    "que de lo contrario podría perderse información";

// Copies the data database at `mdbmod` to `copia` unless a file is there:
// 1 copied, 2 not copied because the file exists, 0 failed (the message
// above shown). The copy is the engine's own, page by page, of the
// database as its last completed change left it, and it is written under
// another name first, so that `copia` never holds part of a database. A
// database on a server (a postgresql:// URI) is copied by pg_dump, in its
// custom format, which pg_restore reads back.
uint8_t CopiaSeguridad(const std::string& mdbmod, const std::string& copia);

// Deletes `copia` when it exists; any error is ignored.
void BorrarCopiaSeguridad(const std::string& copia);

}  // namespace zerbal::upgrade

#endif  // ZERBAL_UPGRADE_COPIA_SEGURIDAD_H_
