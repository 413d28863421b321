// zerbal automation: the library's classes, driven by JSON lines on standard
// input and output (see src/automation/session.h for the requests).

#include <istream>
#include <optional>
#include <ostream>

#include "automation/session.h"
#include "cli/commands.h"
#include "cli/locations.h"

namespace zerbal::cli {

namespace {
constexpr const char* kUsage =
    "usage: zerbal automation [--dir DIR | --data DB [--lookup DB]]\n"
    "\n"
    "Reads one JSON request per line on standard input and writes one JSON\n"
    "answer per line on standard output, until the input ends. Requests create\n"
    "objects by class name, let and get their properties, call their methods\n"
    "and release them; see the README for the format and a worked session.\n"
    "With databases named, every object created gets them as its mdbmod and\n"
    "mdblec, which a request may still change.\n"
    "\n";
}  // namespace

int RunAutomation(const Args& args, std::istream& in, std::ostream& out, std::ostream& err) {
  if (WantsHelp(args)) {
    out << kUsage << kLocationUsage;
    return 0;
  }
  LocationArgs locations;
  for (size_t i = 0; i < args.size(); i += 2) {
    if (i + 1 >= args.size() || !locations.Take(args[i], args[i + 1])) {
      err << kUsage << kLocationUsage;
      return 2;
    }
  }
  automation::Session session;
  if (locations.Given()) {
    const std::optional<Locations> where = locations.Resolve();
    if (!where) {
      err << kUsage << kLocationUsage;
      return 2;
    }
    session.Preset("mdbmod", Variant(where->data));
    session.Preset("mdblec", Variant(where->lookup));
  }
  session.Serve(in, out);
  return 0;
}

}  // namespace zerbal::cli
