#include "cli/import_file.h"

#include <fstream>
#include <set>

#include "base/convert.h"
#include "base/text.h"
#include "cli/line_reader.h"
#include "cli/locations.h"
#include "zerbal/declaraciones.h"
#include "zerbal/error.h"
#include "zerbal/impexp.h"

namespace zerbal::cli {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kBom = "\xEF\xBB\xBF";

// Errors that say a database cannot be used at all, rather than that one
// line could not be stored: the import stops at them.
bool StopsImport(int32_t number) {
  static const std::set<int32_t> kStops = {
      errc::kOutOfMemory,   errc::kInternalError,   errc::kBadFileName, errc::kFileNotFound,
      errc::kPathFileAccess, errc::kPathNotFound,   errc::kCannotCreateObject,
      errc::kDatabaseNotFound, errc::kDiskFull,     errc::kReadOnly,    errc::kDiskIo,
      errc::kInvalidPath,   errc::kCannotOpen,      errc::kLocked,      errc::kUnrecognizedFormat};
  return kStops.count(number) > 0;
}

std::vector<LineError> ErrorsOf(const Variant& errores) {
  std::vector<LineError> list;
  if (!errores.IsArray() || errores(0, 0).IsEmpty()) return list;
  for (int32_t i = 0; i <= errores.AsArray().UBound(2); ++i) {
    list.push_back({CLng(errores(0, i)), CStr(errores(1, i)), {}});
  }
  return list;
}

class Importer {
 public:
  explicit Importer(const ImportOptions& o) : o_(o) {
    imp_.mdbmod(o.data.string());
    imp_.mdblec(o.lookup.string());
    imp_.EjercicioMin(o.year_min);
    imp_.EjercicioMax(o.year_max);
    if (o.declaration) {
      imp_.Declaracion(std::to_string(*o.declaration));
    } else {
      imp_.RechazarDeclaracion(true);  // until a declarant line makes a declaration
    }
  }

  LineOutcome Import(int64_t number, std::string& line, bool too_long) {
    LineOutcome out;
    out.line = number;
    out.record = FirstChar(line);
    if (too_long) {
      out.outcome = Outcome::kTooLong;
      if (out.record == "1" && !o_.declaration) Refuse();
      return out;
    }
    const bool rejected_before = imp_.RechazarDeclaracion();
    Variant valores, errores;
    try {
      if (o_.declaration) {
        imp_.importOpeArr(line, valores, errores, o_.state, o_.only);
      } else {
        imp_.importSpte(line, errores, o_.state, o_.file.string());
      }
    } catch (const Error& e) {
      if (StopsImport(e.Number())) throw;
      out.outcome = Outcome::kRefused;
      out.errors.push_back({e.Number(), {}, e.Description()});
      if (out.record == "1" && !o_.declaration) Refuse();
      return out;
    }
    out.subject = imp_.Sujeto();
    out.result = imp_.Resultado();
    out.errors = ErrorsOf(errores);
    out.outcome = Classify(out, rejected_before);
    return out;
  }

 private:
  // A declarant line that did not make its declaration: the lines after it
  // are skipped, as the driver does after a refused declarant line.
  void Refuse() {
    imp_.RechazarDeclaracion(true);
    seen_declarant_ = true;
  }

  Outcome Classify(const LineOutcome& out, bool rejected_before) {
    switch (out.subject) {
      case 0: return Outcome::kNothingToStore;
      case 1:
        if (o_.declaration) return out.result == 0 ? Outcome::kNothingToStore : Outcome::kRefused;
        seen_declarant_ = true;
        return out.result <= 2 ? Outcome::kStored : Outcome::kRefused;
      case 3:
      case 4: {
        if (o_.declaration && out.result == 2) {
          const bool selected = o_.only == 2 || o_.only == (out.subject == 3 ? 0 : 1);
          return selected ? Outcome::kDeclarationRefused : Outcome::kNotSelected;
        }
        if (!o_.declaration && rejected_before) {
          return seen_declarant_ ? Outcome::kDeclarationRefused : Outcome::kNoDeclarant;
        }
        return out.result == 0 ? Outcome::kStored : Outcome::kRefused;
      }
      default: return Outcome::kUnknownType;
    }
  }

  const ImportOptions& o_;
  cImpExp imp_;
  bool seen_declarant_ = false;
};

void Tally(const LineOutcome& out, bool whole_declarations, ImportSummary& s) {
  ++s.lines;
  switch (out.outcome) {
    case Outcome::kStored:
      ++s.stored;
      if (out.subject == 1) {
        ++s.declarations_created;
        int64_t* kinds[] = {&s.declarants_new, &s.declarants_rewritten, &s.declarants_kept};
        ++*kinds[out.result];
      }
      s.operations += out.subject == 3;
      s.rentals += out.subject == 4;
      return;
    case Outcome::kNothingToStore:
    case Outcome::kNotSelected: return;
    case Outcome::kRefused: {
      std::set<int32_t> numbers;
      for (const LineError& e : out.errors) numbers.insert(e.number);
      for (int32_t n : numbers) ++s.by_error[n];
      break;
    }
    default: ++s.by_reason[out.outcome];
  }
  ++s.refused;
  const bool declarant = out.record == "1" && whole_declarations;
  if (declarant && (out.outcome == Outcome::kRefused || out.outcome == Outcome::kTooLong)) {
    ++s.declarations_refused;
  }
}

// The file's lines as the import reads them: UTF-8, without a byte order
// mark.
template <typename Each>
void ForEachLine(std::istream& in, bool utf8, Each each) {
  LineReader reader(in);
  std::string raw;
  for (int64_t number = 1; reader.Next(raw); ++number) {
    if (number == 1 && utf8 && raw.starts_with(kBom)) raw.erase(0, kBom.size());
    std::string line = utf8 ? raw : Windows1252ToUtf8(raw);
    each(number, line, reader.TooLong());
  }
}

void CheckLayout(const ImportOptions& o) {
  const FileLayout layout = LayoutOf(o.file, o.utf8);
  if (layout == FileLayout::kEither || (layout == FileLayout::kState) == o.state) return;
  const std::string name = o.file.string();
  throw ImportStopped(
      o.state ? name + " does not look like a file in the state agency's layout (it has a "
                       "presenter record, or no \"D\" or \"I\" at position 76 of its "
                       "type-2 lines); without --state it is imported in the treasury's layout"
              : name + " looks like a file in the state agency's layout (no presenter record, "
                       "\"D\" or \"I\" at position 76 of its type-2 lines); --state imports it",
      {}, 0);
}

void CheckDatabase(const fs::path& path, const char* what) {
  if (!IsServerLocation(path.string()) && !fs::is_regular_file(path)) {
    throw ImportStopped("there is no " + std::string(what) + " database at " + path.string(), {},
                        0);
  }
}

}  // namespace

FileLayout LayoutOf(const fs::path& file, bool utf8) {
  std::ifstream in(file, std::ios::binary);
  bool presenter = false;
  int64_t items = 0, marked = 0;
  ForEachLine(in, utf8, [&](int64_t number, const std::string& line, bool) {
    if (number == 1) presenter = FirstChar(line) == "0";
    if (FirstChar(line) != "2") return;
    ++items;
    const std::string kind = UCase(Mid(line, 76, 1));
    marked += kind == "D" || kind == "I";
  });
  if (items == 0) return FileLayout::kEither;
  return !presenter && 2 * marked > items ? FileLayout::kState : FileLayout::kTreasury;
}

int64_t CountLines(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  LineReader reader(in);
  std::string line;
  int64_t count = 0;
  while (reader.Next(line)) ++count;
  return count;
}

ImportSummary ImportFile(const ImportOptions& o,
                         const std::function<void(const LineOutcome&)>& each) {
  CheckDatabase(o.data, "data");
  CheckDatabase(o.lookup, "lookup");
  std::ifstream in(o.file, std::ios::binary);
  if (fs::is_directory(o.file) || !in) {
    throw ImportStopped("cannot read " + o.file.string(), {}, 0);
  }
  CheckLayout(o);
  ImportSummary summary;
  Importer importer(o);
  if (o.declaration) {
    try {
      cDeclaraciones declaraciones;
      declaraciones.mdbmod(o.data.string());
      declaraciones.ObtenerEjercicioDcion(*o.declaration);
    } catch (const Error& e) {
      throw ImportStopped("no declaration " + std::to_string(*o.declaration) + " in " +
                              o.data.string() + ": " + e.Description(),
                          summary, 0);
    }
  }
  ForEachLine(in, o.utf8, [&](int64_t number, std::string& line, bool too_long) {
    LineOutcome out;
    try {
      out = importer.Import(number, line, too_long);
    } catch (const Error& e) {
      throw ImportStopped(e.Description() + " (error " + std::to_string(e.Number()) + ")",
                          summary, number);
    }
    Tally(out, !o.declaration, summary);
    if (each) each(out);
  });
  return summary;
}

}  // namespace zerbal::cli
