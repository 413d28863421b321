#include "zerbal/databases.h"

#include <fstream>
#include <map>

#include "testutil.h"

namespace zerbal {
namespace {

namespace fs = std::filesystem;

// table -> "column T, column I, ..." in order, with the engine type's initial.
std::map<std::string, std::string> ActualSchema(const fs::path& path) {
  std::map<std::string, std::string> schema;
  for (const auto& table :
       test::Rows(path.string(), "SELECT name FROM sqlite_schema WHERE type = 'table' AND name "
                                 "NOT LIKE 'sqlite*'")) {
    const std::string name = table[0].AsString();
    for (const auto& column : test::Rows(
             path.string(), "SELECT name, type FROM pragma_table_info('" + name + "')")) {
      std::string& columns = schema[name];
      columns += (columns.empty() ? "" : ", ") + column[0].AsString() + " " +
                 column[1].AsString().substr(0, 1);
    }
  }
  return schema;
}

TEST(DatabasesTest, BothDatabasesHaveEveryTableAndColumn) {
  test::TempDir dir;
  const DatabasePaths paths = CreateDatabases(dir.path());
  const std::map<std::string, std::string> data = {
      {"TDeclarante",
       "coddec I, dni_cifd T, nombred T, viad T, domiciliod T, numerod I, letrad T, escalerad T, "
       "pisod T, manod T, cod I, municipiod T, codpostald I, prefijod I, telefonod T, nombrepd T, "
       "prefijopd I, telefonopd T"},
      {"TDeclaraciones", "coddecla I, coddecr I, ejercicio I, moneda T"},
      {"tOperadores",
       "codope I, coddeclar I, provo I, paiso T, nifo T, razon T, claveopo T, importe R, impmet R, "
       "impinm R, claverep T, opeseg T, opearr T, ejerimpmet I, impopeT1 R, impopeT2 R, "
       "impopeT3 R, impopeT4 R, impmobT1 R, impmobT2 R, impmobT3 R, impmobT4 R, "
       "siglaspaisintra T, nifpaisintra T, opeivacaja T, opeinvsujpas T, operegposadu T, "
       "impanudevopecaj R"},
      {"tArrendamientos",
       "codarr I, coddeclar I, prova I, provi I, paiso T, nifa T, razon T, importe R, "
       "municipioa T, refcat T, viaa T, domicilioa T, numeroa I, escaleraa T, pisoa T, puertaa T"},
      {"TPresentador",
       "codpres I, dni_cif T, nombre T, via T, domicilio T, numero I, letra T, escalera T, piso T, "
       "mano T, cod I, codpostal I, municipio T, prefijo I, telefono T, nombrep T, prefijop I, "
       "telefonop T"},
      {"tGeneral", "ActOnline I, Idioma T"},
  };
  EXPECT_EQ(ActualSchema(paths.data), data);
  EXPECT_EQ(test::Rows(paths.data.string(), "SELECT ActOnline, Idioma FROM tGeneral"),
            (std::vector<std::vector<Variant>>{{0, "C"}}));
  EXPECT_EQ(test::Rows(paths.data.string(),
                       "SELECT name FROM sqlite_schema WHERE type = 'index' AND sql IS NOT NULL "
                       "ORDER BY name"),
            (std::vector<std::vector<Variant>>{{"TDeclaraciones_coddecr"},
                                               {"TDeclarante_dni_cifd"},
                                               {"tArrendamientos_coddeclar"},
                                               {"tOperadores_coddeclar"}}));
  const std::map<std::string, std::string> lookup = {
      {"TOperaciones", "codigo T, descripcionc T, descripcione T"},
      {"TPROVINCIAS", "PRO_ID T, PRO_CAS T, PRO_EUS T"},
      {"TSIGLASVIA", "codigo T, CAS T, EUS T"},
      {"TPaises", "codigo I, PAISCAS T, PAISEUS T"},
      {"TSiglasPais", "SIGLASPAIS T, PAIS T, paiseus T"},
      {"tgeneral", "URLAct T, Descripcion T"},
  };
  EXPECT_EQ(ActualSchema(paths.lookup), lookup);
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
