// zerbal upgrade: an earlier year's data database brought to the current
// columns, and the refusal of such a database by every other command.

#include <map>
#include <ostream>
#include <stdexcept>

#include "cli/commands.h"
#include "upgrade/columnas.h"
#include "upgrade/copia_seguridad.h"
#include "upgrade/grupos.h"
#include "zerbal/databases.h"
#include "zerbal/platform.h"
#include "zerbal/traspaso.h"

namespace zerbal::cli {
namespace {

namespace fs = std::filesystem;

constexpr const char* kUsage =
    "usage: zerbal upgrade --dir DIR [--backup-dir DIR2]\n"
    "\n"
    "Brings DIR/347mod.db, the data database of an earlier year's program,\n"
    "to the current columns in four groups, each skipped when its marker\n"
    "column is there: 1 the cash and real-estate amounts (IMPMET), 2 the\n"
    "quarterly amounts (EJERIMPMET), 3 the intra-community and 2014 columns\n"
    "(SIGLASPAISINTRA), 4 the rentals' province (PROVI). Each group is\n"
    "applied whole or not at all. Before the first change the database is\n"
    "copied to DIR2/CopSegQORVMod.mdb (DIR2 is DIR unless given); the copy is\n"
    "removed when the upgrade completes and stays when it is cut short, and a\n"
    "second run completes the work. On every run, rentals of province 99 get\n"
    "province 0.\n"
    "\n"
    "Exits 0 only when the database has every current column afterwards and\n"
    "every message was a success.\n";

// The upgrade's critical messages: written as errors, and remembered.
class Messages final : public CriticalMessageBox {
 public:
  explicit Messages(std::ostream& err) : err_(err) { SetCriticalMessageBox(this); }
  ~Messages() override { SetCriticalMessageBox(nullptr); }

  void Show(const std::string& message) override {
    err_ << "zerbal: " << message << "\n";
    shown_.push_back(message);
  }

  bool Shown(std::string_view message) const {
    for (const std::string& m : shown_) {
      if (m == message) return true;
    }
    return false;
  }
  bool Any() const { return !shown_.empty(); }

 private:
  std::ostream& err_;
  std::vector<std::string> shown_;
};

bool ReadOptions(const Args& args, std::map<std::string, std::string>& options) {
  for (size_t i = 0; i < args.size(); i += 2) {
    if ((args[i] != "--dir" && args[i] != "--backup-dir") || i + 1 >= args.size() ||
        options.count(args[i])) {
      return false;
    }
    options[args[i]] = args[i + 1];
  }
  return options.count("--dir") > 0;
}

std::string Joined(const std::vector<std::string>& names, size_t most) {
  std::string text;
  for (size_t i = 0; i < names.size() && i < most; ++i) text += (i ? ", " : "") + names[i];
  if (names.size() > most) text += " and " + std::to_string(names.size() - most) + " more";
  return text;
}

void Report(const std::vector<bool>& before, const std::vector<bool>& after, std::ostream& out) {
  for (size_t i = 0; i < before.size(); ++i) {
    const upgrade::Grupo& g = upgrade::kGrupos[i];
    out << "Group " << g.numero << " (" << g.marcador << " in " << g.tabla << "): "
        << (before[i] ? "skipped, already there" : after[i] ? "applied" : "NOT applied") << "\n";
  }
}

}  // namespace

void RefuseEarlierDatabase(const fs::path& data) {
  std::error_code ec;
  if (!fs::is_regular_file(data, ec)) return;  // each command says so in its own words
  const std::vector<std::string> missing = upgrade::ColumnasQueFaltan(data.string());
  if (missing.empty()) return;
  const fs::path dir = data.parent_path().empty() ? fs::path(".") : data.parent_path();
  throw std::runtime_error(data.string() + " is the data database of an earlier year's program (it lacks " +
                           Joined(missing, 3) + "): run 'zerbal upgrade --dir " + dir.string() +
                           "' first");
}

int RunUpgrade(const Args& args, std::ostream& out, std::ostream& err) {
  if (WantsHelp(args)) {
    out << kUsage;
    return 0;
  }
  std::map<std::string, std::string> options;
  if (!ReadOptions(args, options)) {
    err << kUsage;
    return 2;
  }
  const fs::path dir = options["--dir"];
  const fs::path backup_dir = options.count("--backup-dir") ? fs::path(options["--backup-dir"]) : dir;
  const std::string data = (dir / kDataFileName).string();
  const std::string backup = (backup_dir / "").string();
  try {
    const std::vector<bool> before = upgrade::MarcadoresPresentes(data);
    Messages messages(err);
    cTraspaso traspaso;
    traspaso.mdbmod(data);
    traspaso.mdblec((dir / kLookupFileName).string());
    traspaso.mdbPath(backup);
    traspaso.Traspaso();  // answers False whatever happened: the columns tell
    Report(before, upgrade::MarcadoresPresentes(data), out);
    if (messages.Shown(upgrade::kMensajeCopia)) {
      err << "zerbal: no backup was taken: " << backup << upgrade::kCopiaSeguridad
          << " could not be written\n";
    }
    const std::vector<std::string> missing = upgrade::ColumnasQueFaltan(data);
    if (!missing.empty()) {
      err << "zerbal: " << data << " still lacks " << Joined(missing, 5) << "\n";
      return 1;
    }
    out << data << " has every current column.\n";
    return messages.Any() ? 1 : 0;
  } catch (...) {
    return ReportError(err);
  }
}

}  // namespace zerbal::cli
