// zerbal automation: the library's classes, driven by JSON lines on standard
// input and output (see src/automation/session.h for the requests).

#include <istream>
#include <ostream>

#include "automation/session.h"
#include "cli/commands.h"

namespace zerbal::cli {

namespace {
constexpr const char* kUsage =
    "usage: zerbal automation\n"
    "\n"
    "Reads one JSON request per line on standard input and writes one JSON\n"
    "answer per line on standard output, until the input ends. Requests create\n"
    "objects by class name, let and get their properties, call their methods\n"
    "and release them; see the README for the format and a worked session.\n";
}  // namespace

int RunAutomation(const Args& args, std::istream& in, std::ostream& out, std::ostream& err) {
  if (WantsHelp(args)) {
    out << kUsage;
    return 0;
  }
  if (!args.empty()) {
    err << kUsage;
    return 2;
  }
  automation::Session().Serve(in, out);
  return 0;
}

}  // namespace zerbal::cli
