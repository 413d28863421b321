// cExportacion: the export driver. It turns the stored declarations of one
// fiscal year into the records of the declaration file, one declarant at a
// time, in the layout of that year (500 characters a record from 2011, 180
// before), and writes the declarants file.
//
// The client assigns mdbmod, Ejercicio, Moneda and 0 to NoTotalDeclArren;
// then, for each declarant, calls ExportarReg1 (which finds the declarant's
// declaration of the year and keeps it in Declaracion), ExportarReg2 and
// ExportarReg3; finally ExportarReg0 with the presenter and the counts. The
// client writes the records, one per line, in that order: record 0 first.

#ifndef ZERBAL_EXPORTACION_H_
#define ZERBAL_EXPORTACION_H_

#include <cstdint>
#include <string>

#include "zerbal/variant.h"

namespace zerbal {

class cExportacion {
 public:
  // The current declaration: set by ExportarReg1, read by ExportarReg2 and 3.
  // Assigned as text (converted to a 32-bit number), read as decimal text.
  std::string Declaracion() const { return std::to_string(declaracion_); }
  void Declaracion(const std::string& value);
  const std::string& mdblec() const { return mdblec_; }
  void mdblec(std::string value) { mdblec_ = std::move(value); }
  const std::string& mdbmod() const { return mdbmod_; }
  void mdbmod(std::string value) { mdbmod_ = std::move(value); }
  // The fiscal year: chooses the layout and is written into the records.
  int32_t Ejercicio() const { return ejercicio_; }
  void Ejercicio(int32_t value) { ejercicio_ = value; }
  // The currency handed to the writers: "P" converts pesetas before 2011.
  const std::string& Moneda() const { return moneda_; }
  void Moneda(std::string value) { moneda_ = std::move(value); }
  // Type-2 and type-3 records so far; ExportarReg2 and 3 add to it.
  int32_t NoTotalDeclArren() const { return no_total_; }
  void NoTotalDeclArren(int32_t value) { no_total_ = value; }

  // Writes the declarants file at strRuta (created, or emptied when it
  // exists; Windows-1252 text): one line of 162 characters and CR LF per
  // declarant code in vBufferDeclarantes (elements 0 to its upper bound).
  // On any failure false, keeping the lines already written.
  bool ExportarDtes(const std::string& strRuta, const Variant& vBufferDeclarantes);

  // The number of operation and rental rows of the declarants strDtes
  // (codes separated by commas) for that year and currency. Errors carry the
  // prefix "cExportacion.TotalDeclarados ".
  int32_t TotalDeclarados(int32_t lngEjercicio, const std::string& strMoneda,
                          const std::string& strDtes);

  // Record 0: the presenter (buffer of cPresentador.CargarPresentador) and
  // the counts; the layout follows Ejercicio, the year written lngEjercicio.
  // Errors of the writer pass unchanged.
  std::string ExportarReg0(const Variant& vBufferPresentador, int32_t lngNoTotalDtes,
                           int32_t lngNoTotalDos, int32_t lngEjercicio);

  // Record 1 of the declarant whose code is vBufferDeclarantes(intIndex),
  // with the per-key totals of its declaration; sets Declaracion. Any failure
  // gives the empty string.
  std::string ExportarReg1(const Variant& vBufferDeclarantes, int16_t intIndex);

  // The records 2 (operations, by codope) and 3 (rentals, by codarr) of the
  // declaration in Declaracion, written for the declarant of that index: an
  // array with elements 1 to n (element 0 empty), or Empty when there are
  // none. NoTotalDeclArren grows by n before the records are written; errors
  // pass unchanged.
  Variant ExportarReg2(const Variant& vBufferDeclarantes, int16_t intIndex);
  Variant ExportarReg3(const Variant& vBufferDeclarantes, int16_t intIndex);

 private:
  Variant Declarant(const Variant& vBufferDeclarantes, int16_t intIndex) const;

  int32_t declaracion_ = 0;
  std::string mdblec_;
  std::string mdbmod_;
  int32_t ejercicio_ = 0;
  std::string moneda_;
  int32_t no_total_ = 0;
};

}  // namespace zerbal

#endif  // ZERBAL_EXPORTACION_H_
