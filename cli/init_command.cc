#include <ostream>

#include "cli/commands.h"
#include "zerbal/databases.h"

namespace zerbal::cli {

namespace {
constexpr const char* kUsage =
    "usage: zerbal init DIR [--force]\n"
    "\n"
    "Creates DIR/347mod.db, the data database (empty, with its settings row),\n"
    "and DIR/347lec.db, the lookup database (reference data in Spanish and\n"
    "Basque). DIR is created when missing. Existing files are left alone\n"
    "unless --force is given, which replaces them.\n";
}  // namespace

int RunInit(const Args& args, std::ostream& out, std::ostream& err) {
  if (WantsHelp(args)) {
    out << kUsage;
    return 0;
  }
  std::string dir;
  bool force = false;
  for (const std::string& arg : args) {
    if (arg == "--force") {
      force = true;
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
    const DatabasePaths paths = CreateDatabases(dir, force);
    out << "Created " << paths.data.string() << " (data database)\n"
        << "Created " << paths.lookup.string() << " (lookup database)\n";
    return 0;
  } catch (...) {
    return ReportError(err);
  }
}

}  // namespace zerbal::cli
