// cImpExp: the import driver. The client reads a declaration file itself
// and hands it over line by line; one object serves one whole file, keeping
// between calls the current declaration, whether it was rejected, whether
// its amounts must be converted, and the outcome of the last line.
//
// Usual course: set mdbmod, mdblec, EjercicioMin and EjercicioMax, then call
// importSpte for every line. A declarant line (type 1) creates the
// declarant's declaration of the line's year, which becomes Declaracion; the
// operation (type 2) and rental (type 3) lines after it are validated and,
// when no error was found, stored under it, until the next declarant line.
// To add lines to a declaration that exists, set Declaracion and call
// importOpeArr for every line.
//
// Bad data never raise: each failed check adds a numbered error to the
// errors buffer (a two-dimensional array (column, error): (0, i) the number,
// (1, i) its text; an Empty element (0, 0) means no error), and the outcome
// is a byte code:
//
//   Resultado  declarant line                      operation or rental line
//   0          new declarant [and declaration]     stored
//   1          known 9-character NIF: rewritten    -
//              (importDte: NIF known, nothing done)
//   2          known declarant kept                skipped (importOpeArr only)
//   3          field errors                        field errors
//   4          that year's declaration exists (31) currency clash (46)
//   6          character not allowed (47)          character not allowed (47),
//                                                  or another year's line (48)
//
// Sujeto is the kind of the last line: 0 presenter, 1 declarant, 3
// operation, 4 rental, 5 unknown record type (nothing done).
//
// Operation and rental lines are split and validated by the module of the
// declaration's year (Importacion_2007, _2008, _2011 or _2014); lines in the
// state agency's layout (blnEstatal) are first converted by the module of
// their own year (ConvDelEstatal_2007 to _2014). Failures of the databases reach the caller as the method's error; what
// was stored before stays stored.

#ifndef ZERBAL_IMPEXP_H_
#define ZERBAL_IMPEXP_H_

#include <cstdint>
#include <string>
#include <utility>

#include "zerbal/variant.h"

namespace zerbal {

class cImpExp {
 public:
  const std::string& mdbmod() const { return mdbmod_; }
  void mdbmod(std::string value) { mdbmod_ = std::move(value); }
  const std::string& mdblec() const { return mdblec_; }
  void mdblec(std::string value) { mdblec_ = std::move(value); }
  // The fiscal years the client accepts; a declarant line outside them is
  // imported with error 44 in the errors buffer.
  int32_t EjercicioMin() const { return ejercicio_min_; }
  void EjercicioMin(int32_t value) { ejercicio_min_ = value; }
  int32_t EjercicioMax() const { return ejercicio_max_; }
  void EjercicioMax(int32_t value) { ejercicio_max_ = value; }
  // The current declaration's code, as decimal text; assigned as text and
  // converted to a 32-bit number (13 when it is no number).
  std::string Declaracion() const { return std::to_string(declaracion_); }
  void Declaracion(const std::string& value);
  // While true, operation and rental lines are skipped.
  bool RechazarDeclaracion() const { return rechazar_; }
  void RechazarDeclaracion(bool value) { rechazar_ = value; }
  // The file's amounts are in pesetas and the declaration in euros.
  bool Convertir() const { return convertir_; }
  void Convertir(bool value) { convertir_ = value; }
  uint8_t Resultado() const { return resultado_; }
  void Resultado(uint8_t value) { resultado_ = value; }
  uint8_t Sujeto() const { return sujeto_; }

  // The declarants with a declaration of that year and currency (a table of
  // coddec, dni_cifd, nombred; Null when none). With 0 and a blank currency
  // both are first replaced by the latest year with declarations and its
  // currency. Errors carry the prefix "cImpExp.ObtenerDeclarantes ".
  Variant ObtenerDeclarantes(int32_t& lngEjercicio, std::string& strMoneda);

  // A line of the declarants file: stores a new declarant (0), or finds its
  // NIF known (1). vBufferValores receives the values: column 0 alone, 0 to
  // 17, once accepted.
  uint8_t importDte(const std::string& strLineaLectura, Variant& vBufferValores,
                    Variant& vBufferErrores);

  // A declarant record: the declarant (found by the first 8 characters of
  // its NIF, or stored) and its new euro declaration of the record's year,
  // which becomes Declaracion. vBufferValores: column 0 alone, 0 to 18 (18
  // the year), once accepted. Sets RechazarDeclaracion.
  uint8_t ImportarDte_Cion(const std::string& strLineaLectura, Variant& vBufferValores,
                           Variant& vBufferErrores);

  // Any line of a file: converted first when blnEstatal (strLineaLectura
  // receives the converted line), classified into Sujeto and imported by
  // its kind; the outcome is in Resultado (left unchanged for an operation
  // or rental line of a rejected declaration, and for a presenter line).
  void importSpte(std::string& strLineaLectura, Variant& vBufferErrores, bool blnEstatal,
                  const std::string& strRuta = "");

  // As importSpte, for the existing declaration Declaracion, importing only
  // the kinds that ArrOpe selects (0 operations, 1 rentals, 2 both);
  // Resultado 2 for a line skipped. A declarant line only checks the
  // currency. Returns 0.
  uint8_t importOpeArr(std::string& strLineaLectura, Variant& vBufferValores,
                       Variant& vBufferErrores, bool blnEstatal, uint8_t ArrOpe);

  // The checks of a new declaration on a declarant's values buffer (year at
  // (18, 0), NIF at (1, 0)): outside EjercicioMin..EjercicioMax gives error
  // 44 and true; a declaration of that declarant and year gives error 31 and
  // false.
  bool ComprobarDeclaracion(const Variant& vBufferValores, Variant& vBufferErrores);

 private:
  bool ExisteDeclarante(Variant& vBufferValores);
  int32_t AltaDeclarante(const Variant& vBufferValores);
  int32_t CrearDeclaracion(int32_t lngEjercicio, int32_t lngDeclarante);
  bool ComprobarMoneda(const std::string& strLinea, Variant& vBufferErrores);
  uint8_t ImportarDeclarado(const std::string& strLinea, Variant& vBufferValores,
                            Variant& vBufferErrores);
  uint8_t ImportarArrendamiento(const std::string& strLinea, Variant& vBufferValores,
                                Variant& vBufferErrores);
  // Steps common to operation and rental lines: the characters, the year,
  // the year's splitter and validator. 6, 3, or 0 when the line may be
  // stored; lngEjercicio receives the declaration's year.
  uint8_t ValidarLinea(const std::string& strLinea, Variant& vBufferValores,
                       Variant& vBufferErrores, bool blnOperacion, int32_t& lngEjercicio);
  void GrabarDeclarado(const Variant& vBuffer);
  void GrabarArrendamiento(const Variant& vBuffer);
  void GrabarArrendamiento_2007(const Variant& vBuffer);
  void ConvertirEstatal(std::string& strLineaLectura, const std::string& strRuta);
  bool Clasificar(const std::string& strLineaLectura);

  std::string mdbmod_;
  std::string mdblec_;
  int32_t ejercicio_min_ = 0;
  int32_t ejercicio_max_ = 0;
  int32_t declaracion_ = 0;
  bool rechazar_ = false;
  bool convertir_ = false;
  uint8_t resultado_ = 0;
  uint8_t sujeto_ = 0;
};

}  // namespace zerbal

#endif  // ZERBAL_IMPEXP_H_
