#include "cli/export_file.h"

#include <fstream>
#include <vector>

#include "base/convert.h"
#include "base/text.h"
#include "zerbal/conexion_dao.h"
#include "zerbal/exportacion.h"
#include "zerbal/presentador.h"
#include "zerbal/timpexp.h"

namespace zerbal::cli {
namespace {

namespace fs = std::filesystem;

// The codes of the year's declarants, as the driver takes them: elements 0
// to n-1 of a one-dimensional array.
Variant DeclarantCodes(const ExportOptions& o) {
  Conexion().mdb(bd347mod);
  Conexion().InicializaBD(o.data.string());
  const Variant table = cTImpExp().ObtenerDeclarantes(o.year, o.currency);
  Conexion().Cerrar();
  if (table.IsNull()) {
    throw ExportFailure("no declarations of " + std::to_string(o.year) + " in currency " +
                        o.currency + " in " + o.data.string());
  }
  const int32_t n = table.AsArray().UBound(2);
  Variant codes(Array(0, n - 1));
  for (int32_t k = 1; k <= n; ++k) codes(k - 1) = table(0, k);
  return codes;
}

void Check(const std::string& record, size_t length, const std::string& what) {
  if (record.empty()) throw ExportFailure("the " + what + " could not be built");
  if (static_cast<size_t>(Len(record)) != length) {
    throw ExportFailure("the " + what + " is " + std::to_string(Len(record)) +
                        " characters long, not " + std::to_string(length) +
                        ": a value does not fit its field");
  }
}

void Append(std::vector<std::string>& lines, const Variant& records, size_t length,
            const std::string& what) {
  if (records.IsEmpty()) return;
  const Array& a = records.AsArray();
  for (int32_t i = 1; i <= a.UBound(); ++i) {
    Check(a(i).AsString(), length, what + " " + std::to_string(i));
    lines.push_back(a(i).AsString());
  }
}

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

// Characters of `utf8` that Windows-1252 has no place for.
int32_t Unrepresentable(const std::string& utf8) {
  int32_t count = 0;
  for (size_t pos = 0; pos < utf8.size();) {
    size_t size = 1;
    const char32_t c = DecodeAt(utf8, pos, &size);
    count += (c != U'?' && Windows1252Code(c) == '?');
    pos += size;
  }
  return count;
}

void WriteLines(const std::vector<std::string>& lines, const ExportOptions& o,
                ExportSummary& summary) {
  const fs::path temp = fs::path(o.out.string() + ".tmp");
  {
    std::ofstream file(temp, std::ios::binary | std::ios::trunc);
    for (const std::string& line : lines) {
      if (!o.utf8) summary.replaced_chars += Unrepresentable(line);
      file << (o.utf8 ? line : Utf8ToWindows1252(line)) << "\r\n";
    }
    if (!file.flush()) {
      std::error_code ignored;
      fs::remove(temp, ignored);
      throw ExportFailure("cannot write " + o.out.string());
    }
  }
  fs::rename(temp, o.out);
}

}  // namespace

ExportSummary ExportYear(const ExportOptions& o) {
  const Variant codes = DeclarantCodes(o);
  const Variant presenter = Presenter(o);
  const size_t length = o.year >= 2011 ? 500 : 180;
  cExportacion exportacion;
  exportacion.mdbmod(o.data.string());
  exportacion.Ejercicio(o.year);
  exportacion.Moneda(o.currency);
  exportacion.NoTotalDeclArren(0);

  std::vector<std::string> lines(1);  // record 0 goes first, once the counts are known
  const int32_t n = codes.AsArray().UBound() + 1;
  if (n > INT16_MAX) {  // the driver numbers declarants with 16 bits
    throw ExportFailure(std::to_string(n) + " declarants: at most 32767 fit in one file");
  }
  for (int16_t i = 0; i < n; ++i) {
    if (o.progress) *o.progress << "\rExporting declarant " << i + 1 << " of " << n << std::flush;
    const std::string who = "declarant " + CStr(codes(i));
    const std::string reg1 = exportacion.ExportarReg1(codes, i);
    Check(reg1, length, "record 1 of " + who);
    lines.push_back(reg1);
    Append(lines, exportacion.ExportarReg2(codes, i), length, "record 2 of " + who + ", row");
    Append(lines, exportacion.ExportarReg3(codes, i), length, "record 3 of " + who + ", row");
  }
  if (o.progress) *o.progress << "\r" << std::string(40, ' ') << "\r" << std::flush;
  lines[0] = exportacion.ExportarReg0(presenter, n, exportacion.NoTotalDeclArren(), o.year);
  Check(lines[0], length, "record 0");

  ExportSummary summary;
  summary.declarants = n;
  summary.records = static_cast<int32_t>(lines.size());
  summary.file = o.out;
  WriteLines(lines, o, summary);
  if (o.declarants && !exportacion.ExportarDtes(o.declarants->string(), codes)) {
    throw ExportFailure("cannot write the declarants file " + o.declarants->string());
  }
  return summary;
}

}  // namespace zerbal::cli
