#include "data/data_schema.h"

#include <string>

#include "data/engine.h"
#include "data/resources.h"

namespace zerbal::data {

std::vector<TableSchema> NewDataSchema() {
  PrepareEngine();
  sqlite3* raw = nullptr;
  const int rc = sqlite3_open_v2(":memory:", &raw, SQLITE_OPEN_READWRITE, nullptr);
  DbHandle db(raw);
  if (rc != SQLITE_OK) RaiseEngineError(rc, raw);
  ExecScript(db.get(), std::string(Resource("data_schema.sql")));
  std::vector<TableSchema> tables;
  for (const std::string& name : TableNames(db.get())) {
    tables.push_back(ReadTableSchema(db.get(), name));
  }
  return tables;
}

}  // namespace zerbal::data
