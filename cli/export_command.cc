// zerbal export: the declaration file of a fiscal year.

#include <unistd.h>

#include <algorithm>
#include <iostream>
#include <map>
#include <ostream>

#include "base/convert.h"
#include "cli/commands.h"
#include "cli/export_file.h"
#include "cli/locations.h"
#include "zerbal/databases.h"

namespace zerbal::cli {
namespace {

constexpr const char* kUsage =
    "usage: zerbal export --dir DIR | --data DB [--lookup DB] --year YEAR --out FILE\n"
    "                     [--currency E|P] [--declarants FILE]\n"
    "                     [--encoding windows-1252|utf-8]\n"
    "\n"
    "Writes the declaration file of fiscal year YEAR from DIR/347mod.db: the\n"
    "presenter's record first, then each declarant's records, one per line\n"
    "with CR LF line ends (500 characters a record from 2011, 180 before),\n"
    "in Windows-1252 unless --encoding utf-8. --currency picks the\n"
    "declarations in euros (E, the default) or pesetas (P). --declarants also\n"
    "writes the declarants file (162 characters a line). Each file is replaced\n"
    "whole, keeping its mode, or left as it was; neither may be a database or\n"
    "anything but a regular file.\n"
    "\n";

// Reads "--name value" pairs; false on anything else.
bool ReadOptions(const Args& args, std::map<std::string, std::string>& options,
                 LocationArgs& locations) {
  static const char* const kKnown[] = {"--year", "--out", "--currency", "--declarants",
                                       "--encoding"};
  for (size_t i = 0; i < args.size(); i += 2) {
    if (i + 1 >= args.size()) return false;
    if (LocationArgs::IsOption(args[i])) {
      if (!locations.Take(args[i], args[i + 1])) return false;
      continue;
    }
    const bool known = std::find(std::begin(kKnown), std::end(kKnown), args[i]) != std::end(kKnown);
    if (!known || options.count(args[i])) return false;
    options[args[i]] = args[i + 1];
  }
  return options.count("--year") && options.count("--out");
}

bool ToOptions(const std::map<std::string, std::string>& given, const LocationArgs& locations,
               ExportOptions& o) {
  const std::optional<Locations> where = locations.Resolve();
  if (!where) return false;
  double year = 0;
  if (!ParseNumber(given.at("--year"), &year) || year < 1900 || year > 9999 || year != int(year)) {
    return false;
  }
  o.data = where->data;
  o.lookup = where->lookup;
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
    out << kUsage << kLocationUsage;
    return 0;
  }
  std::map<std::string, std::string> given;
  LocationArgs locations;
  ExportOptions options;
  if (!ReadOptions(args, given, locations) || !ToOptions(given, locations, options)) {
    err << kUsage << kLocationUsage;
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
