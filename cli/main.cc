// zerbal: the command-line client of the library.

#include <iostream>
#include <string>
#include <string_view>

#include "cli/commands.h"
#include "cli/nif_command.h"

namespace {

constexpr const char* kUsage =
    "usage: zerbal COMMAND [ARGS]\n"
    "\n"
    "Keeps the form 347 declarations of declarants in two databases.\n"
    "\n"
    "Commands:\n"
    "  init DIR [--force] [--schema YEAR]\n"
    "                       create the data and lookup databases in DIR\n"
    "  demo [DIR]           run a short demonstration in DIR (default: a new\n"
    "                       temporary folder)\n"
    "  import --dir DIR FILE\n"
    "                       import a declaration file, reporting every line\n"
    "                       not stored\n"
    "  export --dir DIR --year YEAR --out FILE\n"
    "                       write the declaration file of a fiscal year\n"
    "  upgrade --dir DIR [--backup-dir DIR2]\n"
    "                       bring an earlier year's data database to the\n"
    "                       current columns, after a backup copy\n"
    "  nif [--vat] [ID...]  check Spanish tax identifiers (or VAT numbers)\n"
    "  automation           drive the library's classes with JSON lines on\n"
    "                       standard input and output\n"
    "\n"
    "Run 'zerbal COMMAND --help' for the options of a command.\n";

}  // namespace

int main(int argc, char** argv) {
  using namespace zerbal::cli;
  // Nothing here writes through C's stdio; left tied to it, every character
  // that a command reads from standard input costs a call of its own.
  std::ios_base::sync_with_stdio(false);
  if (argc < 2) {
    std::cerr << kUsage;
    return 2;
  }
  const std::string_view command = argv[1];
  const Args args(argv + 2, argv + argc);
  if (command == "--help" || command == "-h" || command == "help") {
    std::cout << kUsage;
    return 0;
  }
  if (command == "init") return RunInit(args, std::cout, std::cerr);
  if (command == "demo") return RunDemo(args, std::cout, std::cerr);
  if (command == "import") return RunImport(args, std::cout, std::cerr);
  if (command == "export") return RunExport(args, std::cout, std::cerr);
  if (command == "automation") return RunAutomation(args, std::cin, std::cout, std::cerr);
  if (command == "upgrade") return RunUpgrade(args, std::cout, std::cerr);
  if (command == "nif") return RunNif(args, std::cin, std::cout, std::cerr);
  std::cerr << "zerbal: unknown command '" << command << "'\n\n" << kUsage;
  return 2;
}
