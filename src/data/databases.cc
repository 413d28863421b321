#include "zerbal/databases.h"

#include <unistd.h>

#include <string>
#include <system_error>
#include <vector>

#include "base/raise.h"
#include "data/connection.h"
#include "data/engine.h"
#include "data/pg_schema.h"
#include "data/resources.h"

namespace zerbal {
namespace {

namespace fs = std::filesystem;

// The scripts that build each database, in order.
const std::vector<std::string_view> kDataScripts = {"data_schema.sql"};
const std::vector<std::string_view> kLookupScripts = {
    "lookup_schema.sql",    "lookup_operaciones.sql", "lookup_provincias.sql",
    "lookup_siglas_via.sql", "lookup_paises.sql",      "lookup_general.sql"};

// An earlier year's data database is the current one with what that year
// lacked taken away: 2011 lacks the intra-community and 2014 columns, 2008
// the quarterly amounts as well, 2007 has tables of its own.
struct EarlierSchema {
  int year;
  std::vector<std::string_view> scripts;
};
const std::vector<EarlierSchema> kEarlierSchemas = {
    {2007, {"data_schema.sql", "data_schema_2007.sql"}},
    {2008, {"data_schema.sql", "data_schema_2011.sql", "data_schema_2008.sql"}},
    {2011, {"data_schema.sql", "data_schema_2011.sql"}},
};

std::vector<std::string_view> DataScripts(int schema) {
  if (schema == kCurrentSchema) return kDataScripts;
  for (const EarlierSchema& earlier : kEarlierSchemas) {
    if (earlier.year == schema) return earlier.scripts;
  }
  Raise(errc::kInvalidProcedureCall, "no data database of " + std::to_string(schema));
}

fs::path WithSuffix(const fs::path& path, std::string_view suffix) {
  return fs::path(path.string() + std::string(suffix));
}

void RemoveQuietly(const fs::path& path) {
  std::error_code ignored;
  for (std::string_view suffix : {"", "-wal", "-shm", "-journal"}) {
    fs::remove(WithSuffix(path, suffix), ignored);
  }
}

void CheckTarget(const fs::path& path, bool replace) {
  std::error_code ec;
  const fs::path folder = path.parent_path();
  if (!folder.empty() && !fs::is_directory(folder, ec)) Raise(errc::kPathNotFound, folder.string());
  if (!replace && fs::exists(path, ec)) Raise(errc::kFileAlreadyExists, path.string());
}

std::string Script(const std::vector<std::string_view>& scripts) {
  std::string sql;
  for (std::string_view name : scripts) {
    const std::string_view text = Resource(name);
    if (text.empty()) Raise(errc::kFileNotFound, name);
    sql.append(text).append("\n");
  }
  return sql;
}

void Build(const fs::path& file, const std::vector<std::string_view>& scripts) {
  data::PrepareEngine();
  sqlite3* raw = nullptr;
  const int rc = sqlite3_open_v2(file.c_str(), &raw,
                                 SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_EXRESCODE,
                                 nullptr);
  data::DbHandle db(raw);
  if (rc != SQLITE_OK) data::RaiseEngineError(rc, raw);
  const std::string sql = "PRAGMA application_id = " + std::to_string(data::kApplicationId) +
                          "; PRAGMA user_version = 1; BEGIN;\n" + Script(scripts) +
                          "COMMIT; PRAGMA journal_mode = WAL;";
  data::ExecScript(db.get(), sql);
}

// Builds under a temporary name, then renames into place; on a server, in
// one transaction.
void Create(const fs::path& path, bool replace, const std::vector<std::string_view>& scripts) {
  if (data::IsServerName(path.string())) return data::CreateOnServer(path.string(), Script(scripts), replace);
  CheckTarget(path, replace);
  const fs::path temp = WithSuffix(path, ".tmp-" + std::to_string(::getpid()));
  RemoveQuietly(temp);
  try {
    Build(temp, scripts);
    // The old file's log and index must not outlive it next to the new file.
    std::error_code ignored;
    fs::remove(WithSuffix(path, "-wal"), ignored);
    fs::remove(WithSuffix(path, "-shm"), ignored);
    fs::rename(temp, path);
  } catch (const fs::filesystem_error& e) {
    RemoveQuietly(temp);
    Raise(errc::kPathFileAccess, e.what());
  } catch (...) {
    RemoveQuietly(temp);
    throw;
  }
}

}  // namespace

void CreateDataDatabase(const fs::path& path, bool replace, int schema) {
  Create(path, replace, DataScripts(schema));
}

void CreateLookupDatabase(const fs::path& path, bool replace) {
  Create(path, replace, kLookupScripts);
}

DatabasePaths CreateDatabases(const fs::path& folder, bool replace, int schema) {
  const std::vector<std::string_view> data_scripts = DataScripts(schema);
  DatabasePaths paths{folder / kDataFileName, folder / kLookupFileName};
  std::error_code ec;
  fs::create_directories(folder, ec);
  if (ec) Raise(errc::kPathNotFound, folder.string() + ": " + ec.message());
  CheckTarget(paths.data, replace);
  CheckTarget(paths.lookup, replace);
  Create(paths.data, replace, data_scripts);
  CreateLookupDatabase(paths.lookup, replace);
  return paths;
}

}  // namespace zerbal
