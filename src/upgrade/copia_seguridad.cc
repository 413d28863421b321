#include "upgrade/copia_seguridad.h"

#include <filesystem>

#include "data/engine.h"
#include "zerbal/platform.h"

namespace zerbal::upgrade {
namespace {

namespace fs = std::filesystem;

void RemoveQuietly(const std::string& path) {
  std::error_code ignored;
  fs::remove(path, ignored);
  fs::remove(path + "-journal", ignored);
}

void Copy(const std::string& from, const std::string& to) {
  const auto source = data::EngineConnection::Open(from, /*read_only=*/true);
  sqlite3* raw = nullptr;
  const int rc = sqlite3_open_v2(to.c_str(), &raw,
                                 SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_EXRESCODE,
                                 nullptr);
  data::DbHandle target(raw);
  if (rc != SQLITE_OK) data::RaiseEngineError(rc, raw);
  sqlite3_backup* backup = sqlite3_backup_init(target.get(), "main", source->db(), "main");
  if (backup == nullptr) data::RaiseEngineError(sqlite3_errcode(target.get()), target.get());
  const int step = sqlite3_backup_step(backup, -1);
  const int finish = sqlite3_backup_finish(backup);
  if (step != SQLITE_DONE) data::RaiseEngineError(step, nullptr);
  data::Check(finish, target.get());
}

}  // namespace

uint8_t CopiaSeguridad(const std::string& mdbmod, const std::string& copia) {
  const std::string partial = copia + ".part";
  try {
    if (fs::exists(copia)) return 2;
    RemoveQuietly(partial);  // left by a run ended while it copied
    Copy(mdbmod, partial);
    fs::rename(partial, copia);
    return 1;
  } catch (...) {
    RemoveQuietly(partial);
    CurrentCriticalMessageBox().Show(std::string(kMensajeCopia));
    return 0;
  }
}

void BorrarCopiaSeguridad(const std::string& copia) {
  std::error_code ignored;
  if (fs::exists(copia, ignored)) fs::remove(copia, ignored);
}

}  // namespace zerbal::upgrade
