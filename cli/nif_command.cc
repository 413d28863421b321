#include "nif_command.h"

#include <istream>
#include <ostream>
#include <string_view>

#include "reference/validacion/validacion.h"

namespace zerbal::cli {
namespace {

constexpr std::string_view kUsage =
    "usage: zerbal nif [--vat] [ID...]\n"
    "Checks Spanish tax identifiers (DNI, NIE, K/L/M, entity NIF), or with --vat\n"
    "EU and XI VAT numbers written with their country prefix. Without IDs, reads\n"
    "one per line from standard input. Prints each one followed by a tab and\n"
    "\"valid\" or \"invalid\"; exits 0 when all are valid, 1 otherwise.\n";

struct Options {
  bool vat = false;
  bool help = false;
  std::vector<std::string> ids;
};

// False on an unknown option, named on `err`.
bool ParseArgs(const std::vector<std::string>& args, Options* options, std::ostream& err) {
  bool options_ended = false;
  for (const std::string& arg : args) {
    if (options_ended || !arg.starts_with("-") || arg == "-") {
      options->ids.push_back(arg);
    } else if (arg == "--") {
      options_ended = true;
    } else if (arg == "--vat") {
      options->vat = true;
    } else if (arg == "--help" || arg == "-h") {
      options->help = true;
    } else {
      err << "zerbal nif: unknown option " << arg << "\n" << kUsage;
      return false;
    }
  }
  return true;
}

bool IsBlank(std::string_view line) {
  return line.find_first_not_of(" \t\f\v") == std::string_view::npos;
}

// Prints the verdict for one identifier; returns whether it was valid.
bool Report(const std::string& id, bool vat, std::ostream& out) {
  const bool valid = vat ? validacion::ValidarVat(id) : validacion::ValidarNifEscrito(id);
  out << id << '\t' << (valid ? "valid" : "invalid") << '\n';
  return valid;
}

}  // namespace

int RunNif(const std::vector<std::string>& args, std::istream& in, std::ostream& out,
           std::ostream& err) {
  Options options;
  if (!ParseArgs(args, &options, err)) return 2;
  if (options.help) {
    out << kUsage;
    return 0;
  }
  bool all_valid = true;
  for (const std::string& id : options.ids) all_valid = Report(id, options.vat, out) && all_valid;
  if (options.ids.empty()) {
    std::string line;
    while (std::getline(in, line)) {
      if (!line.empty() && line.back() == '\r') line.pop_back();
      if (IsBlank(line)) continue;
      all_valid = Report(line, options.vat, out) && all_valid;
    }
  }
  return all_valid ? 0 : 1;
}

}  // namespace zerbal::cli
