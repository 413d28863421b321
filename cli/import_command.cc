// zerbal import: a declaration file into the databases of a folder.

#include <unistd.h>

#include <chrono>
#include <ctime>
#include <iostream>
#include <map>
#include <nlohmann/json.hpp>
#include <ostream>

#include "base/convert.h"
#include "base/text.h"
#include "cli/commands.h"
#include "cli/import_file.h"
#include "cli/import_texts.h"
#include "cli/locations.h"
#include "zerbal/databases.h"

namespace zerbal::cli {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;

constexpr const char* kUsage =
    "usage: zerbal import --dir DIR | --data DB [--lookup DB] [--years MIN-MAX]\n"
    "                     [--encoding windows-1252|utf-8]\n"
    "                     [--state] [--declaration CODE [--only operations|rentals|both]]\n"
    "                     [--lang es|eu] [--json] FILE\n"
    "\n"
    "Imports the declaration file FILE into DIR/347mod.db, line by line: each\n"
    "declarant record creates its declarant's declaration of that year, and\n"
    "the operation and rental records after it are checked and stored under\n"
    "it. With --declaration, the operation and rental records are added to\n"
    "that existing declaration instead (--only picks which).\n"
    "\n"
    "Declarations of years outside --years (default 2002 to this year) are\n"
    "imported with error 44. The file is Windows-1252 unless --encoding utf-8.\n"
    "Files of every year from 2002 on are taken, in the treasury's layout or,\n"
    "with --state, in the state agency's (each line converted first); a file\n"
    "that does not look like the layout asked for is not imported.\n"
    "Every line not stored is reported with its errors, in Spanish or, with\n"
    "--lang eu, in Basque; --json writes one JSON object per line instead.\n"
    "\n"
    "Exit status: 0 every line stored, 3 some lines refused, 1 the import\n"
    "could not run or stopped, 2 bad usage.\n"
    "\n";

struct Command {
  ImportOptions options;
  LocationArgs locations;
  Lang lang = Lang::kEs;
  bool json = false;
};

int32_t ThisYear() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  return local.tm_year + 1900;
}

bool ReadYear(std::string_view text, int32_t& year) {
  double value = 0;
  if (!ParseNumber(text, &value) || value < 1900 || value > 9999 || value != int32_t(value)) {
    return false;
  }
  year = static_cast<int32_t>(value);
  return true;
}

bool ReadYears(const std::string& text, ImportOptions& o) {
  const size_t dash = text.find('-');
  return dash != std::string::npos && ReadYear(text.substr(0, dash), o.year_min) &&
         ReadYear(text.substr(dash + 1), o.year_max) && o.year_min <= o.year_max;
}

bool Apply(const std::string& name, const std::string& value, Command& c) {
  ImportOptions& o = c.options;
  if (LocationArgs::IsOption(name)) {
    return c.locations.Take(name, value);
  } else if (name == "--years") {
    return ReadYears(value, o);
  } else if (name == "--encoding") {
    const std::string e = LCase(value);
    o.utf8 = e == "utf-8";
    return o.utf8 || e == "windows-1252";
  } else if (name == "--declaration") {
    double code = 0;
    if (!ParseNumber(value, &code) || code < 1 || code > INT32_MAX || code != int32_t(code)) {
      return false;
    }
    o.declaration = static_cast<int32_t>(code);
  } else if (name == "--only") {
    static const std::map<std::string, uint8_t> kOnly = {
        {"operations", 0}, {"rentals", 1}, {"both", 2}};
    const auto it = kOnly.find(value);
    if (it == kOnly.end()) return false;
    o.only = it->second;
  } else if (name == "--lang") {
    if (value != "es" && value != "eu") return false;
    c.lang = value == "eu" ? Lang::kEu : Lang::kEs;
  } else {
    return false;
  }
  return true;
}

bool Parse(const Args& args, Command& c) {
  c.options.year_min = 2002;
  c.options.year_max = ThisYear();
  std::map<std::string, std::string> seen;
  bool file = false;
  for (size_t i = 0; i < args.size(); ++i) {
    const std::string& a = args[i];
    if (a == "--json") {
      c.json = true;
    } else if (a == "--state") {
      c.options.state = true;
    } else if (a.starts_with("--")) {
      if (i + 1 >= args.size() || seen.count(a) || !Apply(a, args[i + 1], c)) return false;
      seen[a] = args[++i];
    } else if (!file) {
      c.options.file = a;
      file = true;
    } else {
      return false;
    }
  }
  const bool only_alone = seen.count("--only") && !seen.count("--declaration");
  const std::optional<Locations> where = c.locations.Resolve();
  if (!where) return false;
  c.options.data = where->data;
  c.options.lookup = where->lookup;
  return file && !only_alone;
}

// `text` with "{n}" and the other places filled in.
std::string Fill(std::string_view text,
                 std::initializer_list<std::pair<char, std::string>> values) {
  std::string out(text);
  for (const auto& [key, value] : values) {
    const std::string place = std::string("{") + key + "}";
    if (const size_t at = out.find(place); at != std::string::npos) out.replace(at, 3, value);
  }
  return out;
}

// A value as a terminal can show it: control characters and bytes that are
// not UTF-8 as \xNN.
std::string Printable(std::string_view value) {
  std::string out;
  for (size_t pos = 0; pos < value.size();) {
    size_t size = 1;
    const char32_t c = DecodeAt(value, pos, &size);
    if (c < 0x20 || c == 0x7F || (c == 0xFFFD && size == 1)) {
      static const char kHex[] = "0123456789ABCDEF";
      const auto byte = static_cast<unsigned char>(value[pos]);
      out += std::string("\\x") + kHex[byte >> 4] + kHex[byte & 15];
    } else {
      out.append(value.substr(pos, size));
    }
    pos += size;
  }
  return out;
}

Word WordFor(Outcome outcome) {
  switch (outcome) {
    case Outcome::kStored: return Word::kStoredWithNotes;
    case Outcome::kDeclarationRefused: return Word::kDeclarationRefused;
    case Outcome::kNoDeclarant: return Word::kNoDeclarant;
    case Outcome::kUnknownType: return Word::kUnknownType;
    case Outcome::kTooLong: return Word::kTooLong;
    default: return Word::kNotStored;
  }
}

std::string TextFor(const LineError& e, Lang lang) {
  if (!e.description.empty()) return e.description;
  return std::string(TextOf(e.number, lang));
}

bool Worth(const LineOutcome& out) {
  const bool quiet = out.outcome == Outcome::kNothingToStore ||
                     out.outcome == Outcome::kNotSelected ||
                     (out.outcome == Outcome::kStored && out.errors.empty());
  return !quiet;
}

void PrintLine(const LineOutcome& out, Lang lang, std::ostream& os) {
  if (!Worth(out)) return;
  const std::string record = out.record.empty() ? "-" : Printable(out.record);
  os << Fill(WordOf(Word::kLine, lang), {{'n', std::to_string(out.line)}, {'t', record}}) << ": "
     << WordOf(WordFor(out.outcome), lang) << "\n";
  for (const LineError& e : out.errors) {
    os << "  " << e.number << "  " << TextFor(e, lang);
    if (!e.value.empty()) os << ": \"" << Printable(e.value) << "\"";
    os << "\n";
  }
}

void PrintJson(const LineOutcome& out, Lang lang, std::ostream& os) {
  static const char* const kOutcomes[] = {"stored",  "nothing-to-store", "not-selected",
                                          "refused", "declaration-refused", "no-declarant",
                                          "unknown-record-type", "too-long"};
  json line = {{"line", out.line},
               {"record", out.record},
               {"subject", out.subject},
               {"result", out.result},
               {"outcome", kOutcomes[static_cast<int>(out.outcome)]},
               {"errors", json::array()}};
  for (const LineError& e : out.errors) {
    line["errors"].push_back(
        {{"number", e.number}, {"text", TextFor(e, lang)}, {"value", e.value}});
  }
  os << line.dump(-1, ' ', false, json::error_handler_t::replace) << "\n";
}

void PrintSummary(const ImportSummary& s, Lang lang, std::ostream& os) {
  const auto n = [](int64_t v) { return std::to_string(v); };
  os << Fill(WordOf(Word::kSummary, lang), {{'n', n(s.lines)}}) << "\n  "
     << Fill(WordOf(Word::kDeclarants, lang), {{'a', n(s.declarants_new)},
                                               {'b', n(s.declarants_rewritten)},
                                               {'c', n(s.declarants_kept)}})
     << "\n  "
     << Fill(WordOf(Word::kDeclarations, lang),
             {{'a', n(s.declarations_created)}, {'b', n(s.declarations_refused)}})
     << "\n  " << Fill(WordOf(Word::kOperations, lang), {{'n', n(s.operations)}}) << "\n  "
     << Fill(WordOf(Word::kRentals, lang), {{'n', n(s.rentals)}}) << "\n  "
     << Fill(WordOf(Word::kRefusedLines, lang), {{'n', n(s.refused)}}) << "\n";
  for (const auto& [number, count] : s.by_error) {
    os << "    " << Fill(WordOf(Word::kError, lang), {{'n', n(number)}}) << ": " << count << "\n";
  }
  for (const auto& [reason, count] : s.by_reason) {
    os << "    " << WordOf(WordFor(reason), lang) << ": " << count << "\n";
  }
}

json SummaryJson(const ImportSummary& s) {
  json by_error = json::object();
  for (const auto& [number, count] : s.by_error) by_error[std::to_string(number)] = count;
  return {{"summary",
           {{"lines", s.lines},
            {"declarants", {{"new", s.declarants_new}, {"rewritten", s.declarants_rewritten},
                            {"kept", s.declarants_kept}}},
            {"declarations", {{"created", s.declarations_created},
                              {"refused", s.declarations_refused}}},
            {"operations", s.operations},
            {"rentals", s.rentals},
            {"refused", s.refused},
            {"by_error", by_error}}}};
}

// The progress line on a terminal: lines done, the total and the rate.
class Progress {
 public:
  Progress(std::ostream* err, int64_t total) : err_(err), total_(total) {}
  void Line(int64_t done) {
    if (!err_ || done % 250 != 0) return;
    const double seconds =
        std::chrono::duration<double>(std::chrono::steady_clock::now() - start_).count();
    *err_ << "\r" << done << " / " << total_ << " lines, "
          << static_cast<int64_t>(seconds > 0 ? done / seconds : 0) << " lines/s   " << std::flush;
  }
  void Clear() {
    if (err_) *err_ << "\r" << std::string(60, ' ') << "\r" << std::flush;
  }

 private:
  std::ostream* err_;
  int64_t total_;
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

}  // namespace

int RunImport(const Args& args, std::ostream& out, std::ostream& err) {
  if (WantsHelp(args)) {
    out << kUsage << kLocationUsage;
    return 0;
  }
  Command c;
  if (!Parse(args, c)) {
    err << kUsage << kLocationUsage;
    return 2;
  }
  const bool terminal = &err == &std::cerr && ::isatty(STDERR_FILENO);
  Progress progress(terminal ? &err : nullptr, terminal ? CountLines(c.options.file) : 0);
  const auto each = [&](const LineOutcome& line) {
    if (c.json) {
      PrintJson(line, c.lang, out);
    } else if (Worth(line)) {
      progress.Clear();
      PrintLine(line, c.lang, out);
    }
    progress.Line(line.line);
  };
  try {
    RefuseEarlierDatabase(c.options.data);
    const ImportSummary s = ImportFile(c.options, each);
    progress.Clear();
    if (c.json) {
      out << SummaryJson(s).dump() << "\n";
    } else {
      PrintSummary(s, c.lang, out);
    }
    return s.refused == 0 ? 0 : 3;
  } catch (const ImportStopped& stopped) {
    progress.Clear();
    if (!c.json && stopped.line > 0) PrintSummary(stopped.summary, c.lang, out);
    err << "zerbal: ";
    if (stopped.line > 0) err << "the import stopped at line " << stopped.line << ": ";
    err << stopped.what() << "; " << stopped.summary.stored << " line"
        << (stopped.summary.stored == 1 ? "" : "s") << " stored before it\n";
    return 1;
  } catch (...) {
    progress.Clear();
    return ReportError(err);
  }
}

}  // namespace zerbal::cli
