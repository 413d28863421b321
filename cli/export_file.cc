#include "cli/export_file.h"

#include <stdlib.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "base/convert.h"
#include "base/text.h"
#include "cli/export_target.h"
#include "fileformat/layout.h"
#include "zerbal/conexion_dao.h"
#include "zerbal/databases.h"
#include "zerbal/exportacion.h"
#include "zerbal/presentador.h"
#include "zerbal/timpexp.h"

namespace zerbal::cli {
namespace {

namespace fs = std::filesystem;

// The year's declarants, as the driver takes them: their codes as elements 0
// to n-1 of a one-dimensional array, and their NIFs to name them by.
struct Declarants {
  Variant codes;
  std::vector<std::string> nifs;
};

Declarants DeclarantsOf(const ExportOptions& o) {
  Conexion().mdb(bd347mod);
  Conexion().InicializaBD(o.data.string());
  const Variant table = cTImpExp().ObtenerDeclarantes(o.year, o.currency);
  Conexion().Cerrar();
  if (table.IsNull()) {
    throw ExportFailure("no declarations of " + std::to_string(o.year) + " in currency " +
                        o.currency + " in " + o.data.string());
  }
  const int32_t n = table.AsArray().UBound(2);
  Declarants d{Variant(Array(0, n - 1)), {}};
  for (int32_t k = 1; k <= n; ++k) {
    d.codes(k - 1) = table(0, k);
    d.nifs.push_back(table(1, k).AsString());
  }
  return d;
}

// Refuses `record` (the `row`th written under `watch`) when one of its fields
// did not fit or it is not `length` characters long; a field that misfits
// one way and another the other way would leave the length right and every
// field between them out of place.
void Check(const std::string& record, int32_t row, size_t length, const std::string& what,
           const fileformat::MisfitWatch& watch) {
  if (record.empty()) throw ExportFailure(what + " could not be built");
  if (const auto& misfit = watch.First(); misfit && misfit->record == row) {
    const fileformat::Field& f = *misfit->field;
    throw ExportFailure(what + " cannot be written: " + std::string(f.name) + " takes " +
                        std::to_string(f.width) + " characters (positions " +
                        std::to_string(f.start) + " to " + std::to_string(f.start + f.width - 1) +
                        "), and its value \"" + misfit->text + "\" has " +
                        std::to_string(Len(misfit->text)));
  }
  if (static_cast<size_t>(Len(record)) != length) {
    throw ExportFailure(what + " is " + std::to_string(Len(record)) + " characters long, not " +
                        std::to_string(length));
  }
}

// The lines of the file as they are built, each in the file's code page.
class Lines {
 public:
  Lines(Replacement& out, const ExportOptions& o, ExportSummary& summary)
      : out_(out), o_(o), summary_(summary) {}

  void Add(const std::string& record) {
    const std::string line = Encoded(record);
    buffer_ += line;
    if (buffer_.size() >= kBuffered) Flush();
    ++summary_.records;
  }
  // The records 2 or 3 of one declarant, rows 1 to n of `records`.
  void AddRows(const Variant& records, size_t length, const std::string& what,
               const fileformat::MisfitWatch& watch) {
    if (records.IsEmpty()) return;
    const Array& a = records.AsArray();
    for (int32_t i = 1; i <= a.UBound(); ++i) {
      Check(a(i).AsString(), i - 1, length, what + ", row " + std::to_string(i), watch);
      Add(a(i).AsString());
    }
  }
  void Flush() {
    out_.Write(buffer_);
    buffer_.clear();
  }
  std::string Encoded(const std::string& record) {
    if (o_.utf8) return record + "\r\n";
    std::string line = Utf8ToWindows1252(record);
    // Characters the code page has no place for are written "?".
    summary_.replaced_chars += static_cast<int32_t>(std::count(line.begin(), line.end(), '?') -
                                                    std::count(record.begin(), record.end(), '?'));
    return line + "\r\n";
  }

 private:
  static constexpr size_t kBuffered = 1 << 16;
  Replacement& out_;
  const ExportOptions& o_;
  ExportSummary& summary_;
  std::string buffer_;
};

Variant Presenter(const ExportOptions& o) {
  cPresentador presentador;
  presentador.mdbmod(o.data.string());
  Variant buffer;
  presentador.CargarPresentador(buffer);
  if (buffer(0) == Variant(0)) {
    throw ExportFailure("there is no presenter in " + o.data.string() + ": save one first");
  }
  return buffer;
}

// The declarants file as ExportarDtes writes it, made in a new folder of our
// own, where nothing else can stand under its name, and read back.
std::string DeclarantsFileText(cExportacion& exportacion, const Variant& codes) {
  std::string folder = (fs::temp_directory_path() / "zerbal-export-XXXXXX").string();
  if (::mkdtemp(folder.data()) == nullptr) {
    throw ExportFailure("cannot make a temporary folder in " +
                        fs::temp_directory_path().string() + ": " + std::strerror(errno));
  }
  struct Removed {
    fs::path folder;
    ~Removed() {
      std::error_code ignored;
      fs::remove_all(folder, ignored);
    }
  } removed{folder};
  const fs::path file = removed.folder / "declarants.txt";
  if (!exportacion.ExportarDtes(file.string(), codes)) {
    throw ExportFailure("cannot build the declarants file");
  }
  std::ifstream in(file, std::ios::binary);
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

}  // namespace

ExportSummary ExportYear(const ExportOptions& o) {
  const fs::path lookup = o.lookup.empty() ? o.data.parent_path() / kLookupFileName : o.lookup;
  const std::vector<KeptFile> databases = DatabaseFiles(o.data, lookup);
  std::vector<KeptFile> kept_from_declarants = databases;
  kept_from_declarants.push_back({o.out, "the declaration file (--out)"});
  CheckTarget(o.out, databases);
  if (o.declarants) {
    CheckTarget(*o.declarants, kept_from_declarants);
    if (fs::weakly_canonical(*o.declarants) == fs::weakly_canonical(o.out)) {
      throw ExportFailure("the declarants file and the declaration file are both " +
                          o.out.string() + ": name two files");
    }
  }

  const Declarants declarants = DeclarantsOf(o);
  const Variant& codes = declarants.codes;
  const Variant presenter = Presenter(o);
  const size_t length = o.year >= 2011 ? 500 : 180;
  cExportacion exportacion;
  exportacion.mdbmod(o.data.string());
  exportacion.Ejercicio(o.year);
  exportacion.Moneda(o.currency);
  exportacion.NoTotalDeclArren(0);
  const int32_t n = codes.AsArray().UBound() + 1;
  if (n > INT16_MAX) {  // the driver numbers declarants with 16 bits
    throw ExportFailure(std::to_string(n) + " declarants: at most 32767 fit in one file");
  }
  auto reg0 = [&] {
    fileformat::MisfitWatch watch;
    std::string record = exportacion.ExportarReg0(presenter, n, exportacion.NoTotalDeclArren(), o.year);
    Check(record, 0, length, "record 0 (the presenter)", watch);
    return record;
  };

  // Records are written as they are built. Record 0 goes first but carries
  // the count of the others: its place is kept and it is written over it at
  // the end (the counts are digits, so its length does not change).
  ExportSummary summary;
  summary.declarants = n;
  summary.file = o.out;
  Replacement out(o.out, databases);
  Lines lines(out, o, summary);
  const std::string placeholder = lines.Encoded(reg0());
  summary.replaced_chars = 0;
  lines.Add(std::string(placeholder.size() - 2, ' '));
  for (int16_t i = 0; i < n; ++i) {
    if (o.progress) *o.progress << "\rExporting declarant " << i + 1 << " of " << n << std::flush;
    const std::string who = " of declarant " + declarants.nifs[i];
    {
      fileformat::MisfitWatch watch;
      const std::string reg1 = exportacion.ExportarReg1(codes, i);
      Check(reg1, 0, length, "record 1" + who, watch);
      lines.Add(reg1);
    }
    {
      fileformat::MisfitWatch watch;
      lines.AddRows(exportacion.ExportarReg2(codes, i), length, "record 2" + who, watch);
    }
    fileformat::MisfitWatch watch;
    lines.AddRows(exportacion.ExportarReg3(codes, i), length, "record 3" + who, watch);
  }
  if (o.progress) *o.progress << "\r" << std::string(40, ' ') << "\r" << std::flush;
  lines.Flush();
  const std::string first = lines.Encoded(reg0());
  if (first.size() != placeholder.size()) throw ExportFailure("record 0 changed its length");
  out.WriteAt(0, first);

  const std::string declarants_text =
      o.declarants ? DeclarantsFileText(exportacion, codes) : std::string();
  out.Commit();
  if (o.declarants) ReplaceFile(*o.declarants, declarants_text, kept_from_declarants);
  return summary;
}

}  // namespace zerbal::cli
