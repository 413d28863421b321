#include <ostream>

#include "base/convert.h"
#include "cli/commands.h"
#include "zerbal/databases.h"

namespace zerbal::cli {

namespace {
constexpr const char* kUsage =
    "usage: zerbal init DIR [--force] [--schema 2007|2008|2011]\n"
    "\n"
    "Creates DIR/347mod.db, the data database (empty, with its settings row),\n"
    "and DIR/347lec.db, the lookup database (reference data in Spanish and\n"
    "Basque). DIR is created when missing. Existing files are left alone\n"
    "unless --force is given, which replaces them.\n"
    "\n"
    "--schema makes the data database as the program of that year left it,\n"
    "for trying 'zerbal upgrade': 2007 lacks every column that the upgrade\n"
    "adds, 2008 the quarterly amounts and the intra-community and 2014\n"
    "columns, 2011 only the intra-community and 2014 columns.\n";

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
    out << kUsage;
    return 0;
  }
  std::string dir;
  bool force = false;
  int schema = kCurrentSchema;
  for (size_t i = 0; i < args.size(); ++i) {
    const std::string& arg = args[i];
    if (arg == "--force") {
      force = true;
    } else if (arg == "--schema" && schema == kCurrentSchema && i + 1 < args.size() &&
               ReadSchema(args[i + 1], &schema)) {
      ++i;
    } else if (dir.empty() && !arg.starts_with("-")) {
      dir = arg;
    } else {
      err << kUsage;
      return 2;
    }
  }
  if (dir.empty()) {
    err << kUsage;
    return 2;
  }
  try {
    const DatabasePaths paths = CreateDatabases(dir, force, schema);
    out << "Created " << paths.data.string() << " (data database"
        << (schema == kCurrentSchema ? "" : " of " + std::to_string(schema)) << ")\n"
        << "Created " << paths.lookup.string() << " (lookup database)\n";
    return 0;
  } catch (...) {
    return ReportError(err);
  }
}

}  // namespace zerbal::cli
