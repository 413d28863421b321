// zerbal export: the declaration file of a fiscal year.

#include <unistd.h>

#include <algorithm>
#include <iostream>
#include <map>
#include <ostream>

#include "base/convert.h"
#include "cli/commands.h"
#include "cli/export_file.h"
#include "zerbal/databases.h"

namespace zerbal::cli {
namespace {

constexpr const char* kUsage =
    "usage: zerbal export --dir DIR --year YEAR --out FILE [--currency E|P]\n"
    "                     [--declarants FILE] [--encoding windows-1252|utf-8]\n"
    "\n"
    "Writes the declaration file of fiscal year YEAR from DIR/347mod.db: the\n"
    "presenter's record first, then each declarant's records, one per line\n"
    "with CR LF line ends (500 characters a record from 2011, 180 before),\n"
    "in Windows-1252 unless --encoding utf-8. --currency picks the\n"
    "declarations in euros (E, the default) or pesetas (P). --declarants also\n"
    "writes the declarants file (162 characters a line). Each file is replaced\n"
    "whole, keeping its mode, or left as it was; neither may be a database or\n"
    "anything but a regular file.\n";

// Reads "--name value" pairs; false on anything else.
bool ReadOptions(const Args& args, std::map<std::string, std::string>& options) {
  static const char* const kKnown[] = {"--dir", "--year", "--out", "--currency", "--declarants",
                                       "--encoding"};
  for (size_t i = 0; i < args.size(); i += 2) {
    const bool known = std::find(std::begin(kKnown), std::end(kKnown), args[i]) != std::end(kKnown);
    if (!known || i + 1 >= args.size() || options.count(args[i])) return false;
    options[args[i]] = args[i + 1];
  }
  return options.count("--dir") && options.count("--year") && options.count("--out");
}

bool ToOptions(const std::map<std::string, std::string>& given, ExportOptions& o) {
  double year = 0;
  if (!ParseNumber(given.at("--year"), &year) || year < 1900 || year > 9999 || year != int(year)) {
    return false;
  }
  o.data = std::filesystem::path(given.at("--dir")) / kDataFileName;
  o.year = static_cast<int32_t>(year);
  o.out = given.at("--out");
  if (auto it = given.find("--currency"); it != given.end()) o.currency = UCase(it->second);
  if (auto it = given.find("--declarants"); it != given.end()) o.declarants = it->second;
  if (auto it = given.find("--encoding"); it != given.end()) {
    const std::string encoding = LCase(it->second);
    if (encoding != "utf-8" && encoding != "windows-1252") return false;
    o.utf8 = encoding == "utf-8";
  }
  return o.currency == "E" || o.currency == "P";
}

}  // namespace

int RunExport(const Args& args, std::ostream& out, std::ostream& err) {
  if (WantsHelp(args)) {
    out << kUsage;
    return 0;
  }
  std::map<std::string, std::string> given;
  ExportOptions options;
  if (!ReadOptions(args, given) || !ToOptions(given, options)) {
    err << kUsage;
    return 2;
  }
  if (&err == &std::cerr && ::isatty(STDERR_FILENO)) options.progress = &err;
  try {
    RefuseEarlierDatabase(options.data);
    const ExportSummary s = ExportYear(options);
    out << "Exported " << s.declarants << " declarant" << (s.declarants == 1 ? "" : "s") << ", "
        << s.records << " records to " << s.file.string() << "\n";
    if (s.replaced_chars > 0) {
      err << "zerbal: warning: " << s.replaced_chars
          << " characters have no Windows-1252 code and were written as \"?\"\n";
    }
    return 0;
  } catch (...) {
    return ReportError(err);
  }
}

}  // namespace zerbal::cli
