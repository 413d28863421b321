#include "zerbal/exportacion.h"

#include <fstream>

#include "base/convert.h"
#include "base/raise.h"
#include "base/text.h"
#include "data/open.h"
#include "fileformat/linea_dte.h"
#include "fileformat/seleccion.h"
#include "zerbal/arrendamiento.h"
#include "zerbal/declaraciones.h"
#include "zerbal/declarado.h"
#include "zerbal/declarante.h"
#include "zerbal/timpexp.h"

namespace zerbal {
namespace {

// The records of a list (a table whose column 0 holds the codes), element i
// written by `write` from the code of row i: elements 1 to n, 0 empty.
template <typename Write>
Variant Records(const Variant& list, int32_t& total, Write write) {
  if (list.IsNull()) return Variant();
  const int32_t n = list.AsArray().UBound(2);
  Variant records(Array(0, n));
  total += n;  // counted before the records are written, as clients expect
  for (int32_t i = 1; i <= n; ++i) records(i) = write(CLng(list(0, i)));
  return records;
}

}  // namespace

void cExportacion::Declaracion(const std::string& value) { declaracion_ = CLng(value); }

Variant cExportacion::Declarant(const Variant& vBufferDeclarantes, int16_t intIndex) const {
  cDeclarante declarante;
  declarante.mdbmod(mdbmod_);
  Variant buffer;
  declarante.CargarDeclarante(CLng(vBufferDeclarantes(intIndex)), buffer);
  return buffer;
}

bool cExportacion::ExportarDtes(const std::string& strRuta, const Variant& vBufferDeclarantes) {
  std::ofstream file(strRuta, std::ios::binary | std::ios::trunc);
  if (!file) return false;
  try {
    cDeclarante declarante;
    declarante.mdbmod(mdbmod_);
    const Array& codes = vBufferDeclarantes.AsArray();
    for (int32_t i = codes.LBound(); i <= codes.UBound(); ++i) {
      Variant buffer;
      declarante.CargarDeclarante(CLng(codes(i)), buffer);
      // The treasury's files are in the single-byte code page.
      file << Utf8ToWindows1252(fileformat::GenerarLineaDte(buffer)) << "\r\n";
    }
    return file.flush().good();
  } catch (...) {
    return false;
  }
}

int32_t cExportacion::TotalDeclarados(int32_t lngEjercicio, const std::string& strMoneda,
                                      const std::string& strDtes) {
  return InDataDatabase("cExportacion.TotalDeclarados ", mdbmod_, [&] {
    return cTImpExp().TotalDeclarados(lngEjercicio, strMoneda, strDtes);
  });
}

std::string cExportacion::ExportarReg0(const Variant& vBufferPresentador, int32_t lngNoTotalDtes,
                                       int32_t lngNoTotalDos, int32_t lngEjercicio) {
  return fileformat::WritersFor(ejercicio_).GenerarReg0(vBufferPresentador, lngNoTotalDtes,
                                                        lngNoTotalDos, lngEjercicio);
}

std::string cExportacion::ExportarReg1(const Variant& vBufferDeclarantes, int16_t intIndex) {
  try {
    cDeclaraciones declaraciones;
    declaraciones.mdbmod(mdbmod_);
    const Variant declarant = Declarant(vBufferDeclarantes, intIndex);
    declaracion_ = declaraciones.ObtenerDeclaracion(CLng(vBufferDeclarantes(intIndex)), ejercicio_);
    const Variant totals = declaraciones.ObtenerTotalDeclarados(declaracion_);
    return fileformat::WritersFor(ejercicio_).GenerarReg1(declarant, totals, moneda_, ejercicio_);
  } catch (...) {
    return "";
  }
}

Variant cExportacion::ExportarReg2(const Variant& vBufferDeclarantes, int16_t intIndex) {
  cDeclarado declarado;
  declarado.mdbmod(mdbmod_);
  const Variant declarant = Declarant(vBufferDeclarantes, intIndex);
  const auto write = fileformat::WritersFor(ejercicio_).GenerarReg2;
  return Records(declarado.ObtenerDeclarados(declaracion_), no_total_, [&](int32_t codope) {
    return Variant(write(ejercicio_, declarado.CargarDeclarado(codope), declarant, moneda_));
  });
}

Variant cExportacion::ExportarReg3(const Variant& vBufferDeclarantes, int16_t intIndex) {
  cArrendamiento arrendamiento;
  arrendamiento.mdbmod(mdbmod_);
  const Variant declarant = Declarant(vBufferDeclarantes, intIndex);
  const auto write = fileformat::WritersFor(ejercicio_).GenerarReg3;
  return Records(arrendamiento.ObtenerArrendamientos(declaracion_), no_total_,
                 [&](int32_t codarr) {
                   return write(ejercicio_, arrendamiento.CargarArrendamiento(codarr), declarant,
                                moneda_);
                 });
}

}  // namespace zerbal
