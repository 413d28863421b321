#include "upgrade/copia_seguridad.h"

#include <spawn.h>
#include <sys/wait.h>

#include <libpq-fe.h>

#include <filesystem>
#include <string_view>
#include <vector>

#include "data/connection.h"
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

extern "C" char** environ;

// The connection string of `uri` without its password, which goes to
// `password` instead: a command line is visible to every user of the machine.
std::string WithoutPassword(const std::string& uri, std::string* password) {
  char* error = nullptr;
  PQconninfoOption* options = PQconninfoParse(uri.c_str(), &error);
  if (options == nullptr) {
    PQfreemem(error);
    throw std::runtime_error("not a connection URI");
  }
  std::string conninfo;
  for (const PQconninfoOption* o = options; o->keyword != nullptr; ++o) {
    if (o->val == nullptr) continue;
    if (std::string_view(o->keyword) == "password") {
      *password = o->val;
      continue;
    }
    std::string value;
    for (const char* c = o->val; *c; ++c) {
      if (*c == '\\' || *c == '\'') value += '\\';
      value += *c;
    }
    conninfo += std::string(conninfo.empty() ? "" : " ") + o->keyword + "='" + value + "'";
  }
  PQconninfoFree(options);
  return conninfo;
}

// A database on a server is copied by the server's own dump (tables and
// rows, pg_restore reads it back), taken by the pg_dump on the PATH.
void Dump(const std::string& uri, const std::string& to) {
  std::string password;
  std::string program = "pg_dump";
  std::string format = "--format=custom";
  std::string dbname = "--dbname=" + WithoutPassword(uri, &password);
  std::string file = "--file=" + to;
  char* argv[] = {program.data(), format.data(), dbname.data(), file.data(), nullptr};
  std::vector<std::string> env_text;
  for (char** e = environ; *e != nullptr; ++e) {
    if (!password.empty() && std::string_view(*e).starts_with("PGPASSWORD=")) continue;
    env_text.emplace_back(*e);
  }
  if (!password.empty()) env_text.push_back("PGPASSWORD=" + password);
  std::vector<char*> env;
  for (std::string& e : env_text) env.push_back(e.data());
  env.push_back(nullptr);
  pid_t pid = -1;
  if (::posix_spawnp(&pid, program.c_str(), nullptr, nullptr, argv, env.data()) != 0) {
    throw std::runtime_error("pg_dump could not be started");
  }
  int status = 0;
  if (::waitpid(pid, &status, 0) != pid || !WIFEXITED(status) || WEXITSTATUS(status) != 0) {
    throw std::runtime_error("pg_dump failed");
  }
}

void Copy(const std::string& from, const std::string& to) {
  if (data::IsServerName(from)) return Dump(from, to);
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
