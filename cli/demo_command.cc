// zerbal demo: a walk through the library on fresh databases, printing each
// step: the presenter, two declarants with their declarations, operations
// and rentals, copies into other years, the export of three fiscal years,
// and deletions.

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iomanip>
#include <ostream>
#include <string>

#include "base/text.h"
#include "cli/commands.h"
#include "cli/demo_data.h"
#include "cli/export_file.h"
#include "cli/locations.h"
#include "zerbal/arrendamiento.h"
#include "zerbal/databases.h"
#include "zerbal/declaraciones.h"
#include "zerbal/declarado.h"
#include "zerbal/declarante.h"
#include "zerbal/presentador.h"
#include "zerbal/variant.h"

namespace zerbal::cli {
namespace {

namespace fs = std::filesystem;

constexpr const char* kUsage =
    "usage: zerbal demo [DIR] [--data DB] [--lookup DB]\n"
    "\n"
    "Creates the two databases in DIR (default: a new temporary folder, whose\n"
    "name is printed) and walks through the library: a presenter, two\n"
    "declarants with declarations of 2014 and 2012, operations and rentals,\n"
    "copies into 2015 and 2010, the declaration files of 2014, 2012 and 2010\n"
    "(DIR/347_<year>.txt, written as `zerbal export` writes them), and\n"
    "deletions. DIR must not hold databases already; the databases stay there.\n"
    "\n";

constexpr const char* kPresenterFields[] = {
    "codpres", "dni_cif", "nombre", "via", "domicilio", "numero", "letra", "escalera", "piso",
    "mano", "cod", "codpostal", "municipio", "prefijo", "telefono", "nombrep", "prefijop",
    "telefonop"};

// The folder named (created when missing), or a new temporary one.
fs::path DemoFolder(const std::string& named) {
  if (!named.empty()) {
    fs::create_directories(named);
    return named;
  }
  const char* tmp = std::getenv("TMPDIR");
  std::string pattern = std::string(tmp && *tmp ? tmp : "/tmp") + "/zerbal-demo-XXXXXX";
  if (::mkdtemp(pattern.data()) == nullptr) throw fs::filesystem_error("mkdtemp", pattern, {});
  return pattern;
}

class Demo {
 public:
  Demo(const fs::path& dir, const Locations& where, std::ostream& out)
      : dir_(dir), where_(where), out_(out) {
    CreateAt(where_, false, kCurrentSchema);
    for (PathProperties* c : std::initializer_list<PathProperties*>{
             &presentador_, &declarante_, &declaraciones_, &declarado_, &arrendamiento_}) {
      c->mdbmod(where_.data);
      c->mdblec(where_.lookup);
    }
    out_ << "zerbal demo in " << dir.string() << "\n\n"
         << "1. Created " << Shown(where_.data) << " (data) and " << Shown(where_.lookup)
         << " (lookup)\n";
  }

  void Run() {
    Presenter();
    Declarants();
    Copies();
    Lists("7. Declarants and their declarations (year, currency, operations, rentals):");
    Exports();
    Deletions();
  }

 private:
  void Presenter() {
    presenter_code_ = presentador_.GuardarPresentador(SamplePresenter());
    out_ << "2. Saved the presenter: code " << presenter_code_ << "\n";
    Variant loaded;
    presentador_.CargarPresentador(loaded);
    out_ << "3. Loaded it back (the postal code keeps its last three digits; an\n"
            "   apostrophe is stored as an acute accent):\n";
    for (int32_t i = 0; i <= 17; ++i) {
      out_ << "     " << std::setw(2) << i << "  " << std::left << std::setw(10)
           << kPresenterFields[i] << std::right << "  " << DebugString(loaded(i)) << "\n";
    }
    out_ << "4. Found by NIF B20456786: code " << presentador_.NifRepetido("B20456786")
         << "; by b20456786: code " << presentador_.NifRepetido("b20456786")
         << "; by B2045678: code " << presentador_.NifRepetido("B2045678") << "\n";
    presentador_.EliminarPresentador(presenter_code_);
    out_ << "   Deleted presenter " << presenter_code_ << "; finding it again gives "
         << presentador_.NifRepetido("B20456786");
    presenter_code_ = presentador_.GuardarPresentador(SamplePresenter());
    out_ << "; saved it again as " << presenter_code_ << " for the files' record 0\n";
  }

  void Declarants() {
    out_ << "5. Saved two declarants, each with declarations of 2014 and 2012:\n";
    for (const DemoDeclarant& d : SampleDeclarants()) {
      const int32_t code = declarante_.GuardarDeclarante(DeclarantBuffer(d));
      codes_.push_back(code);
      out_ << "     declarant " << code << " " << d.nif << " " << d.name << "\n";
      for (int32_t year : {2014, 2012}) {
        const int32_t declaration = declaraciones_.GuardarDeclaracion(year, "E", code);
        for (const DemoOperation& op : d.operations) {
          declarado_.GuardarDeclarado(OperationBuffer(declaration, year, op));
        }
        for (const DemoRental& r : d.rentals) {
          arrendamiento_.GuardarArrendamiento(RentalBuffer(declaration, r));
        }
        out_ << "       " << year << ": declaration " << declaration << ", "
             << "operations: " << d.operations.size() << ", rentals: " << d.rentals.size() << "\n";
      }
    }
  }

  void Copies() {
    const int32_t first_2014 = declaraciones_.ObtenerDeclaracion(codes_[0], 2014);
    const int32_t copy_2015 = declaraciones_.DuplicarDeclaracion(2014, 2015, "E", first_2014);
    const int32_t second_2012 = declaraciones_.ObtenerDeclaracion(codes_[1], 2012);
    const int32_t copy_2010 = declaraciones_.DuplicarDeclaracion(2012, 2010, "E", second_2012);
    out_ << "6. Copied declaration " << first_2014 << " (2014) to 2015 as " << copy_2015
         << ", and " << second_2012 << " (2012) to 2010 as " << copy_2010
         << "\n   (into 2010 the negative amounts are left out and the quarters dropped)\n";
  }

  void Lists(const char* title) {
    out_ << title << "\n";
    const Variant list = declarante_.ObtenerDeclarantes();
    if (list.IsNull()) return;
    for (int32_t k = 1; k <= list.AsArray().UBound(2); ++k) {
      out_ << "     " << list(0, k).AsString() << "  " << list(1, k).AsString() << "  "
           << list(2, k).AsString() << "\n";
      const Variant years = declaraciones_.ObtenerDeclaraciones(CLngOf(list(0, k)));
      for (int32_t r = 1; !years.IsNull() && r <= years.AsArray().UBound(2); ++r) {
        out_ << "        " << DebugString(years(1, r)) << " " << years(2, r).AsString()
             << "  operations: " << DebugString(years(3, r))
             << ", rentals: " << DebugString(years(4, r)) << "\n";
      }
    }
  }

  void Exports() {
    out_ << "8. Exported the declaration files (record 0, then each declarant's 1, 2 and 3):\n";
    for (int32_t year : {2014, 2012, 2010}) {
      ExportOptions options;
      options.data = where_.data;
      options.lookup = where_.lookup;
      options.year = year;
      options.out = dir_ / ("347_" + std::to_string(year) + ".txt");
      const ExportSummary s = ExportYear(options);
      out_ << "     " << s.file.filename().string() << ": " << s.declarants << " declarants, "
           << s.records << " records; first records:\n";
      std::ifstream file(s.file, std::ios::binary);
      std::string line;
      for (int n = 0; n < 2 && std::getline(file, line); ++n) {
        // The file is in Windows-1252; the terminal shows UTF-8.
        out_ << "       " << Left(Windows1252ToUtf8(line), 96) << "...\n";
      }
    }
  }

  void Deletions() {
    declarante_.EliminarDeclarante(codes_[1], true);
    Lists(("9. Deleted declarant " + std::to_string(codes_[1]) +
           " with its declarations; what is left:").c_str());
    const bool server = IsServerLocation(where_.data);
    out_ << "\nThe databases stay " << (server ? "on the server" : "in " + dir_.string())
         << "; try\n  zerbal export "
         << (server ? "--data " + where_.data + " --lookup " + where_.lookup : "--dir " + dir_.string())
         << " --year 2014 --out 347_2014.txt\n";
  }

  static int32_t CLngOf(const Variant& text) { return std::stoi(text.AsString()); }

  // A file by its name, a server's database by its URI.
  static std::string Shown(const std::string& location) {
    return IsServerLocation(location) ? location : fs::path(location).filename().string();
  }

  fs::path dir_;
  Locations where_;
  std::ostream& out_;
  cPresentador presentador_;
  cDeclarante declarante_;
  cDeclaraciones declaraciones_;
  cDeclarado declarado_;
  cArrendamiento arrendamiento_;
  int32_t presenter_code_ = 0;
  std::vector<int32_t> codes_;
};

}  // namespace

int RunDemo(const Args& args, std::ostream& out, std::ostream& err) {
  if (WantsHelp(args)) {
    out << kUsage << kLocationUsage;
    return 0;
  }
  std::string named;
  LocationArgs locations;
  bool usable = true;
  for (size_t i = 0; i < args.size() && usable; ++i) {
    if (LocationArgs::IsOption(args[i]) && args[i] != "--dir") {
      usable = i + 1 < args.size() && locations.Take(args[i], args[i + 1]);
      ++i;
    } else {
      usable = named.empty() && !args[i].starts_with("-");
      named = args[i];
    }
  }
  if (!usable) {
    err << kUsage << kLocationUsage;
    return 2;
  }
  try {
    const fs::path dir = DemoFolder(named);
    locations.Take("--dir", dir.string());
    Demo(dir, *locations.Resolve(), out).Run();
    return 0;
  } catch (...) {
    return ReportError(err);
  }
}

}  // namespace zerbal::cli
