#include "zerbal/databases.h"

#include <fstream>
#include <map>

#include "testutil.h"

namespace zerbal {
namespace {

namespace fs = std::filesystem;

using Columns = std::vector<std::pair<std::string, std::string>>;

Columns Long(std::initializer_list<const char*> names) {
  Columns out;
  for (const char* n : names) out.emplace_back(n, "INTEGER");
  return out;
}

// table -> its columns in order, with the engine type of each.
std::map<std::string, Columns> ActualSchema(const std::string& path) {
  std::map<std::string, Columns> schema;
  for (const auto& table :
       test::Rows(path, "SELECT name FROM sqlite_schema WHERE type = 'table' AND name NOT LIKE "
                        "'sqlite*'")) {
    const std::string name = table[0].AsString();
    for (const auto& column :
         test::Rows(path, "SELECT name, type FROM pragma_table_info('" + name + "')")) {
      schema[name].emplace_back(column[0].AsString(), column[1].AsString());
    }
  }
  return schema;
}

Columns PersonColumns(std::string_view key, std::initializer_list<const char*> names) {
  Columns out{{std::string(key), "INTEGER"}};
  for (const char* n : names) {
    const std::string s(n);
    const bool number = s.starts_with("numero") || s == "cod" || s.starts_with("codpostal") ||
                        s.starts_with("prefijo");
    out.emplace_back(s, number ? "INTEGER" : "TEXT");
  }
  return out;
}

TEST(DatabasesTest, TheDataDatabaseHasEveryTableAndColumn) {
  test::TempDir dir;
  const DatabasePaths paths = CreateDatabases(dir.path());
  Columns operations = Long({"codope", "coddeclar", "provo"});
  for (const char* text : {"paiso", "nifo", "razon", "claveopo"}) operations.emplace_back(text, "TEXT");
  for (const char* real : {"importe", "impmet", "impinm"}) operations.emplace_back(real, "REAL");
  for (const char* text : {"claverep", "opeseg", "opearr"}) operations.emplace_back(text, "TEXT");
  operations.emplace_back("ejerimpmet", "INTEGER");
  for (const char* real : {"impopeT1", "impopeT2", "impopeT3", "impopeT4", "impmobT1", "impmobT2",
                           "impmobT3", "impmobT4"}) {
    operations.emplace_back(real, "REAL");
  }
  for (const char* text :
       {"siglaspaisintra", "nifpaisintra", "opeivacaja", "opeinvsujpas", "operegposadu"}) {
    operations.emplace_back(text, "TEXT");
  }
  operations.emplace_back("impanudevopecaj", "REAL");
  Columns rentals = Long({"codarr", "coddeclar", "prova", "provi"});
  for (const char* text : {"paiso", "nifa", "razon"}) rentals.emplace_back(text, "TEXT");
  rentals.emplace_back("importe", "REAL");
  for (const char* text : {"municipioa", "refcat", "viaa", "domicilioa"}) rentals.emplace_back(text, "TEXT");
  rentals.emplace_back("numeroa", "INTEGER");
  for (const char* text : {"escaleraa", "pisoa", "puertaa"}) rentals.emplace_back(text, "TEXT");

  const std::map<std::string, Columns> expected = {
      {"TDeclarante", PersonColumns("coddec", {"dni_cifd", "nombred", "viad", "domiciliod", "numerod",
                                         "letrad", "escalerad", "pisod", "manod", "cod",
                                         "municipiod", "codpostald", "prefijod", "telefonod",
                                         "nombrepd", "prefijopd", "telefonopd"})},
      {"TDeclaraciones", {{"coddecla", "INTEGER"}, {"coddecr", "INTEGER"},
                          {"ejercicio", "INTEGER"}, {"moneda", "TEXT"}}},
      {"tOperadores", operations},
      {"tArrendamientos", rentals},
      {"TPresentador", PersonColumns("codpres", {"dni_cif", "nombre", "via", "domicilio", "numero",
                                           "letra", "escalera", "piso", "mano", "cod",
                                           "codpostal", "municipio", "prefijo", "telefono",
                                           "nombrep", "prefijop", "telefonop"})},
      {"tGeneral", {{"ActOnline", "INTEGER"}, {"Idioma", "TEXT"}}},
  };
  EXPECT_EQ(ActualSchema(paths.data.string()), expected);
  EXPECT_EQ(test::Rows(paths.data.string(), "SELECT ActOnline, Idioma FROM tGeneral"),
            (std::vector<std::vector<Variant>>{{0, "C"}}));
  EXPECT_EQ(test::Rows(paths.data.string(),
                       "SELECT name FROM sqlite_schema WHERE type = 'index' AND sql IS NOT NULL "
                       "ORDER BY name"),
            (std::vector<std::vector<Variant>>{{"TDeclaraciones_coddecr"},
                                               {"TDeclarante_dni_cifd"},
                                               {"tArrendamientos_coddeclar"},
                                               {"tOperadores_coddeclar"}}));
}

TEST(DatabasesTest, TheLookupDatabaseHasEveryTableAndColumn) {
  test::TempDir dir;
  const DatabasePaths paths = CreateDatabases(dir.path());
  const auto text = [](std::initializer_list<const char*> names) {
    Columns out;
    for (const char* n : names) out.emplace_back(n, "TEXT");
    return out;
  };
  Columns countries{{"codigo", "INTEGER"}, {"PAISCAS", "TEXT"}, {"PAISEUS", "TEXT"}};
  const std::map<std::string, Columns> expected = {
      {"TOperaciones", text({"codigo", "descripcionc", "descripcione"})},
      {"TPROVINCIAS", text({"PRO_ID", "PRO_CAS", "PRO_EUS"})},
      {"TSIGLASVIA", text({"codigo", "CAS", "EUS"})},
      {"TPaises", countries},
      {"TSiglasPais", text({"SIGLASPAIS", "PAIS", "paiseus"})},
      {"tgeneral", text({"URLAct", "Descripcion"})},
  };
  EXPECT_EQ(ActualSchema(paths.lookup.string()), expected);
}

TEST(DatabasesTest, ExistingFilesAreKeptUnlessReplacing) {
  test::TempDir dir;
  const DatabasePaths paths = CreateDatabases(dir.path());
  test::Exec(paths.data.string(), "INSERT INTO TDeclarante (dni_cifd) VALUES ('kept')");
  fs::remove(paths.lookup);
  EXPECT_RAISES(CreateDatabases(dir.path()), errc::kFileAlreadyExists);
  EXPECT_FALSE(fs::exists(paths.lookup)) << "refused before creating either file";
  EXPECT_EQ(test::Rows(paths.data.string(), "SELECT dni_cifd FROM TDeclarante").size(), 1u);
  CreateDatabases(dir.path(), /*replace=*/true);
  EXPECT_TRUE(test::Rows(paths.data.string(), "SELECT dni_cifd FROM TDeclarante").empty());
  EXPECT_TRUE(fs::exists(paths.lookup));
  for (const auto& entry : fs::directory_iterator(dir.path())) {
    EXPECT_EQ(entry.path().string().find(".tmp"), std::string::npos) << entry.path();
  }
}

TEST(DatabasesTest, NoFileIsLeftWhenCreationFails) {
  test::TempDir dir;
  EXPECT_RAISES(CreateDataDatabase(dir / "no" / "347mod.db"), errc::kPathNotFound);
  std::ofstream(dir / "blocker");
  EXPECT_RAISES(CreateDatabases(dir / "blocker"), errc::kPathNotFound);
  fs::create_directory(dir / "347mod.db");  // a folder where the file should go
  EXPECT_ANY_THROW(CreateDataDatabase(dir / "347mod.db", /*replace=*/true));
  size_t files = 0;
  for (const auto& entry : fs::directory_iterator(dir.path())) {
    ++files;
    EXPECT_EQ(entry.path().string().find(".tmp"), std::string::npos) << entry.path();
  }
  EXPECT_EQ(files, 2u);
}

}  // namespace
}  // namespace zerbal
