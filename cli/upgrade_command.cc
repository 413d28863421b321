// zerbal upgrade: an earlier year's data database brought to the current
// columns, and the refusal of such a database by every other command.

#include <optional>
#include <ostream>
#include <stdexcept>
#include <utility>

#include "cli/commands.h"
#include "cli/locations.h"
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
    "usage: zerbal upgrade --dir DIR | --data DB [--lookup DB] [--backup-dir DIR2]\n"
    "\n"
    "Brings DIR/347mod.db (or DB), the data database of an earlier year's program,\n"
    "to the current columns in four groups, each skipped when its marker\n"
    "column is there: 1 the cash and real-estate amounts (IMPMET), 2 the\n"
    "quarterly amounts (EJERIMPMET), 3 the intra-community and 2014 columns\n"
    "(SIGLASPAISINTRA), 4 the rentals' province (PROVI). Each group is\n"
    "applied whole or not at all. Before the first change the database is\n"
    "copied to DIR2/CopSegQORVMod.mdb (DIR2 is the data database's folder\n"
    "unless given, and must be given for a server's database, whose copy is\n"
    "the server's own dump of it); the copy is\n"
    "removed when the upgrade completes and stays when it is cut short, and a\n"
    "second run completes the work. On every run, rentals of province 99 get\n"
    "province 0.\n"
    "\n"
    "Exits 0 only when the database has every current column afterwards and\n"
    "every message was a success.\n"
    "\n";

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

// The databases and the backup folder; nothing on bad usage.
std::optional<std::pair<Locations, fs::path>> ReadOptions(const Args& args) {
  LocationArgs locations;
  std::optional<fs::path> backup_dir;
  for (size_t i = 0; i < args.size(); i += 2) {
    if (i + 1 >= args.size()) return std::nullopt;
    if (args[i] == "--backup-dir" && !backup_dir) {
      backup_dir = args[i + 1];
    } else if (!locations.Take(args[i], args[i + 1])) {
      return std::nullopt;
    }
  }
  const std::optional<Locations> where = locations.Resolve();
  if (!where) return std::nullopt;
  if (!backup_dir) {
    if (IsServerLocation(where->data)) return std::nullopt;
    backup_dir = fs::path(where->data).parent_path();
    if (backup_dir->empty()) backup_dir = ".";
  }
  return std::make_pair(*where, *backup_dir);
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
  const bool server = IsServerLocation(data.string());
  if (!server && !fs::is_regular_file(data, ec)) return;  // each command says so in its own words
  const std::vector<std::string> missing = upgrade::ColumnasQueFaltan(data.string());
  if (missing.empty()) return;
  const fs::path dir = data.parent_path().empty() ? fs::path(".") : data.parent_path();
  const std::string command = server ? "--data " + data.string() + " --lookup ... --backup-dir ..."
                                     : "--dir " + dir.string();
  throw std::runtime_error(data.string() + " is the data database of an earlier year's program (it lacks " +
                           Joined(missing, 3) + "): run 'zerbal upgrade " + command + "' first");
}

int RunUpgrade(const Args& args, std::ostream& out, std::ostream& err) {
  if (WantsHelp(args)) {
    out << kUsage << kLocationUsage;
    return 0;
  }
  const auto options = ReadOptions(args);
  if (!options) {
    err << kUsage << kLocationUsage;
    return 2;
  }
  const std::string& data = options->first.data;
  const std::string backup = (options->second / "").string();
  try {
    const std::vector<bool> before = upgrade::MarcadoresPresentes(data);
    Messages messages(err);
    cTraspaso traspaso;
    traspaso.mdbmod(data);
    traspaso.mdblec(options->first.lookup);
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
