#include <filesystem>
#include <optional>
#include <ostream>
#include <system_error>

#include "base/convert.h"
#include "base/raise.h"
#include "cli/commands.h"
#include "cli/locations.h"
#include "zerbal/databases.h"

namespace zerbal::cli {

namespace {

namespace fs = std::filesystem;
constexpr const char* kUsage =
    "usage: zerbal init [--dir] DIR | --data DB [--lookup DB] [--force]\n"
    "                   [--schema 2007|2008|2011]\n"
    "\n"
    "Creates DIR/347mod.db, the data database (empty, with its settings row),\n"
    "and DIR/347lec.db, the lookup database (reference data in Spanish and\n"
    "Basque). DIR is created when missing. Existing databases are left alone\n"
    "unless --force is given, which replaces them. On a server, the database\n"
    "named by the URI must exist; init creates the tables in it.\n"
    "\n"
    "--schema makes the data database as the program of that year left it,\n"
    "for trying 'zerbal upgrade': 2007 lacks every column that the upgrade\n"
    "adds, 2008 the quarterly amounts and the intra-community and 2014\n"
    "columns, 2011 only the intra-community and 2014 columns.\n"
    "\n";

// The year after --schema (the library says which years it knows).
bool ReadSchema(const std::string& text, int* schema) {
  double year = 0;
  if (!ParseNumber(text, &year) || year < 1900 || year > 9999 || year != static_cast<int>(year)) {
    return false;
  }
  *schema = static_cast<int>(year);
  return true;
}

}  // namespace

int RunInit(const Args& args, std::ostream& out, std::ostream& err) {
  if (WantsHelp(args)) {
    out << kUsage << kLocationUsage;
    return 0;
  }
  std::string dir;
  LocationArgs locations;
  bool force = false;
  int schema = kCurrentSchema;
  bool usable = true;
  for (size_t i = 0; i < args.size() && usable; ++i) {
    const std::string& arg = args[i];
    if (arg == "--force") {
      force = true;
    } else if (arg == "--schema" && schema == kCurrentSchema && i + 1 < args.size() &&
               ReadSchema(args[i + 1], &schema)) {
      ++i;
    } else if (LocationArgs::IsOption(arg)) {
      usable = i + 1 < args.size() && locations.Take(arg, args[++i]);
      if (arg == "--dir") dir = args[i];
    } else if (dir.empty() && !arg.starts_with("-")) {
      dir = arg;
      usable = locations.Take("--dir", dir);
    } else {
      usable = false;
    }
  }
  const std::optional<Locations> where = locations.Resolve();
  if (!usable || !where) {
    err << kUsage << kLocationUsage;
    return 2;
  }
  try {
    if (!dir.empty()) {
      std::error_code ec;
      fs::create_directories(dir, ec);
      if (ec) Raise(errc::kPathNotFound, dir + ": " + ec.message());
    }
    CreateAt(*where, force, schema);
    out << "Created " << where->data << " (data database"
        << (schema == kCurrentSchema ? "" : " of " + std::to_string(schema)) << ")\n"
        << "Created " << where->lookup << " (lookup database)\n";
    return 0;
  } catch (...) {
    return ReportError(err);
  }
}

}  // namespace zerbal::cli
