#include "upgrade/upgrade_fixture.h"

#include <algorithm>

#include "base/convert.h"
#include "data/data_schema.h"
#include "data/database.h"
#include "data/engine.h"

namespace zerbal::test {
namespace {

std::vector<std::string> Lines(std::vector<data::TableSchema> tables) {
  std::sort(tables.begin(), tables.end(),
            [](const auto& a, const auto& b) { return a.name < b.name; });
  std::vector<std::string> lines;
  for (const data::TableSchema& t : tables) {
    lines.push_back(t.name + (t.strict ? " STRICT" : ""));
    for (const data::Column& c : t.columns) {
      const data::FieldDef& f = c.field;
      lines.push_back(t.name + "." + f.name + " type " + std::to_string(f.type) + " size " +
                      std::to_string(f.size) + " default [" + f.default_value + "] required " +
                      std::to_string(f.required) + " zero " + std::to_string(f.allow_zero_length) +
                      " counter " + std::to_string(f.counter) + ": " +
                      data::Squeezed(c.definition));
    }
    for (const std::string& sql : t.dependents) lines.push_back(data::Squeezed(sql));
  }
  return lines;
}

}  // namespace

TextRows Text(const std::string& path, const std::string& sql) {
  TextRows rows;
  for (const auto& row : Rows(path, sql)) {
    std::vector<std::string>& out = rows.emplace_back();
    for (const Variant& v : row) out.push_back(v.IsNull() ? "NULL" : CStr(v));
  }
  return rows;
}

void FillEarlier(const std::string& mod, int schema) {
  const bool numbers = schema == 2007;
  const std::string op = "INSERT INTO tOperadores (coddeclar, provo, paiso, nifo, razon, claveopo, "
                         "importe, claverep) VALUES (1, ";
  Exec(mod, op + "20, " + (numbers ? "0" : "'FR'") + ", 'B20000001', 'Uno SL', 'A', 1000, 'X')");
  Exec(mod, op + "99, " + (numbers ? "724" : "'PT'") + ", ' ', 'Dos SA', 'B', 2000, 'R')");
  const std::string arr =
      "INSERT INTO tArrendamientos (coddeclar, prova, paiso, nifa, razon, importe) VALUES (1, ";
  Exec(mod, arr + "99, " + (numbers ? "0" : "'FR'") + ", 'A20111111', 'Lonja', 500)");
  Exec(mod, arr + "7, " + (numbers ? "12" : "'PT'") + ", 'A20222222', 'Local', 600)");
}

std::vector<std::string> SchemaLines(const std::string& path) {
  data::Workspace workspace("test", "admin", "", 2);
  const data::Database db = workspace.OpenDatabase(path, false, false, "");
  std::vector<data::TableSchema> tables;
  for (const std::string& name : db.Engine()->TableNames()) {
    tables.push_back(db.Engine()->ReadTable(name));
  }
  return Lines(std::move(tables));
}

std::vector<std::string> NewSchemaLines() { return Lines(data::NewDataSchema()); }

}  // namespace zerbal::test
