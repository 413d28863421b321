// A year exported from an upgraded database of 2007 is the year exported
// from a new database holding what the current program would have stored.

#include <fstream>
#include <sstream>

#include "cli/demo_data.h"
#include "cli/export_file.h"
#include "testutil.h"
#include "zerbal/arrendamiento.h"
#include "zerbal/databases.h"
#include "zerbal/declaraciones.h"
#include "zerbal/declarado.h"
#include "zerbal/declarante.h"
#include "zerbal/presentador.h"
#include "zerbal/traspaso.h"

namespace zerbal {
namespace {

namespace fs = std::filesystem;

// One operation and one rental as the program of 2007 stored them.
struct Operacion {
  int32_t provo, paiso;
  const char* nifo;
  const char* razon;
  const char* clave;
  double importe;
  const char* claverep;
};
const Operacion kOperaciones[] = {
    {20, 0, "54362315K", "Goikoetxea Larrañaga, Ane", "A", 1250000, "X"},
    {48, 0, "B58378431", "Zubia D´Arrieta S.L.", "B", 3870050, " "},
    {99, 250, " ", "Société Lumière SARL", "A", 560000, "R"},
};
struct Arrendamiento {
  int32_t prova, paiso;
  const char* nifa;
  double importe;
};
const Arrendamiento kArrendamientos[] = {{99, 0, "X2482300W", 1800000}, {48, 0, "B58378431", 2400000}};

// The presenter, the declarant and its declaration of 2007; its code.
int32_t Declaracion(const std::string& mod) {
  cPresentador presentador;
  cDeclarante declarante;
  cDeclaraciones declaraciones;
  for (PathProperties* c : std::initializer_list<PathProperties*>{&presentador, &declarante, &declaraciones}) {
    c->mdbmod(mod);
  }
  presentador.GuardarPresentador(cli::SamplePresenter());
  return declaraciones.GuardarDeclaracion(
      2007, "E", declarante.GuardarDeclarante(cli::DeclarantBuffer(cli::SampleDeclarants()[0])));
}

void Fill2007(const std::string& mod) {
  const std::string code = std::to_string(Declaracion(mod));
  for (const Operacion& o : kOperaciones) {
    test::Exec(mod, "INSERT INTO tOperadores (coddeclar, provo, paiso, nifo, razon, claveopo, "
                    "importe, claverep, opeseg, opearr) VALUES (" + code + ", " +
                        std::to_string(o.provo) + ", " + std::to_string(o.paiso) + ", '" + o.nifo +
                        "', '" + o.razon + "', '" + o.clave + "', " + std::to_string(o.importe) +
                        ", '" + o.claverep + "', ' ', ' ')");
  }
  for (const Arrendamiento& a : kArrendamientos) {
    test::Exec(mod, "INSERT INTO tArrendamientos (coddeclar, prova, paiso, nifa, razon, importe, "
                    "municipioa, refcat, viaa, domicilioa, numeroa, escaleraa, pisoa, puertaa) "
                    "VALUES (" + code + ", " + std::to_string(a.prova) + ", " +
                        std::to_string(a.paiso) + ", '" + a.nifa + "', 'Lonja', " +
                        std::to_string(a.importe) + ", 'Eibar', ' ', 'CL', 'Easo', 21, ' ', ' ', ' ')");
  }
}

// The same through the record classes of today: a country 0 is one blank,
// key X is R, province 99 of a rental is province 20 of a premises with
// province 0.
void FillCurrent(const std::string& mod) {
  const int32_t code = Declaracion(mod);
  cDeclarado declarado;
  declarado.mdbmod(mod);
  for (const Operacion& o : kOperaciones) {
    declarado.GuardarDeclarado(test::Buffer(
        {0, code, o.provo, o.paiso == 0 ? " " : std::to_string(o.paiso), o.nifo,
         std::string(o.razon), o.clave, o.importe, 0.0, 0.0,
         std::string(o.claverep) == "X" ? "R" : o.claverep, " ", " ", 0.0, 0.0, 0.0, 0.0, 0.0,
         0.0, 0.0, 0.0, 0, "", "", " ", " ", " ", 0.0}));
  }
  cArrendamiento arrendamiento;
  arrendamiento.mdbmod(mod);
  for (const Arrendamiento& a : kArrendamientos) {
    arrendamiento.GuardarArrendamiento(test::Buffer(
        {0, code, a.prova == 99 ? 0 : a.prova, " ", a.nifa, "Lonja", a.importe, "Eibar", " ",
         "CL", "Easo", 21, " ", " ", " ", a.prova == 99 ? 20 : a.prova}));
  }
}

std::string Export(const fs::path& dir) {
  cli::ExportOptions options;
  options.data = dir / kDataFileName;
  options.year = 2007;
  options.out = dir / "347_2007.txt";
  cli::ExportYear(options);
  std::ifstream in(options.out, std::ios::binary);
  std::stringstream text;
  text << in.rdbuf();
  return text.str();
}

TEST(ExportUpgradedTest, AYearOf2007ExportsAsFromANewDatabase) {
  test::TempDir dir;
  CreateDatabases(dir / "2007", false, 2007);
  CreateDatabases(dir / "new");
  Fill2007((dir / "2007" / kDataFileName).string());
  FillCurrent((dir / "new" / kDataFileName).string());

  cTraspaso traspaso;
  traspaso.mdbmod((dir / "2007" / kDataFileName).string());
  traspaso.mdbPath((dir / "2007" / "").string());
  traspaso.Traspaso();

  const std::string upgraded = Export(dir / "2007");
  EXPECT_EQ(upgraded, Export(dir / "new"));
  EXPECT_EQ(std::count(upgraded.begin(), upgraded.end(), '\n'), 1 + 1 + 3 + 2);
}

}  // namespace
}  // namespace zerbal
