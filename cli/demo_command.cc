// zerbal demo: a short walk through the library on fresh databases.

#include <cstdlib>
#include <filesystem>
#include <iomanip>
#include <ostream>
#include <string>

#include "cli/commands.h"
#include "zerbal/databases.h"
#include "zerbal/presentador.h"
#include "zerbal/variant.h"

namespace zerbal::cli {
namespace {

namespace fs = std::filesystem;

constexpr const char* kUsage =
    "usage: zerbal demo [DIR]\n"
    "\n"
    "Creates the two databases in DIR (default: a new temporary folder, whose\n"
    "name is printed) and walks through the library: saves a presenter, loads\n"
    "it back, finds it by its tax identifier and deletes it. DIR must not\n"
    "hold databases already.\n";

constexpr const char* kPresenterFields[] = {
    "codpres", "dni_cif", "nombre", "via", "domicilio", "numero", "letra", "escalera", "piso",
    "mano", "cod", "codpostal", "municipio", "prefijo", "telefono", "nombrep", "prefijop",
    "telefonop"};

void PrintBuffer(std::ostream& out, const Variant& buffer, const char* const* names) {
  const Array& a = buffer.AsArray();
  for (int32_t i = a.LBound(); i <= a.UBound(); ++i) {
    out << "     " << std::setw(2) << i << "  " << std::left << std::setw(10) << names[i]
        << std::right << "  " << DebugString(a(i)) << "\n";
  }
}

Variant SamplePresenter() {
  Variant buffer(Array(0, 17));
  const Variant values[] = {0, "B20456786", "Aholkularitza D'Elosegi S.L.", "CL",
                            "Kale Nagusia", 12, "", "", "3", "B", 20, "20005",
                            "Donostia", 943, "123456", "Miren Etxeberria", 943, "654321"};
  for (int32_t i = 0; i <= 17; ++i) buffer(i) = values[i];
  return buffer;
}

fs::path DemoFolder(const Args& args) {
  if (!args.empty()) return args[0];
  const char* tmp = std::getenv("TMPDIR");
  std::string pattern = std::string(tmp && *tmp ? tmp : "/tmp") + "/zerbal-demo-XXXXXX";
  if (::mkdtemp(pattern.data()) == nullptr) throw fs::filesystem_error("mkdtemp", pattern, {});
  return pattern;
}

void Walk(const fs::path& dir, std::ostream& out) {
  const DatabasePaths paths = CreateDatabases(dir);
  out << "zerbal demo in " << dir.string() << "\n\n"
      << "1. Created " << paths.data.filename().string() << " (data) and "
      << paths.lookup.filename().string() << " (lookup)\n";

  cPresentador presenter;
  presenter.mdbmod(paths.data.string());
  presenter.mdblec(paths.lookup.string());
  const int32_t code = presenter.GuardarPresentador(SamplePresenter());
  out << "2. Saved the presenter: code " << code << "\n";

  Variant loaded;
  presenter.CargarPresentador(loaded);
  out << "3. Loaded it back (the postal code keeps its last three digits; an\n"
         "   apostrophe is stored as an acute accent):\n";
  PrintBuffer(out, loaded, kPresenterFields);

  out << "4. Found by NIF B20456786: code " << presenter.NifRepetido("B20456786")
      << "; by b20456786: code " << presenter.NifRepetido("b20456786")
      << "; by B2045678: code " << presenter.NifRepetido("B2045678") << "\n";

  presenter.EliminarPresentador(code);
  out << "5. Deleted presenter " << code << "; finding it again gives "
      << presenter.NifRepetido("B20456786") << "\n";
}

}  // namespace

int RunDemo(const Args& args, std::ostream& out, std::ostream& err) {
  if (WantsHelp(args)) {
    out << kUsage;
    return 0;
  }
  if (args.size() > 1) {
    err << kUsage;
    return 2;
  }
  try {
    Walk(DemoFolder(args), out);
    return 0;
  } catch (...) {
    return ReportError(err);
  }
}

}  // namespace zerbal::cli
