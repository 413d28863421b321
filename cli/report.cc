#include <algorithm>
#include <exception>
#include <ostream>

#include "cli/commands.h"
#include "zerbal/error.h"

namespace zerbal::cli {

int ReportError(std::ostream& err) {
  try {
    throw;
  } catch (const Error& e) {
    err << "zerbal: " << e.Description() << " (error " << e.Number() << ")\n";
  } catch (const std::exception& e) {
    err << "zerbal: " << e.what() << "\n";
  }
  return 1;
}

bool WantsHelp(const Args& args) {
  return std::any_of(args.begin(), args.end(),
                     [](const std::string& a) { return a == "--help" || a == "-h"; });
}

}  // namespace zerbal::cli
