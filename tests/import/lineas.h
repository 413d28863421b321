// Valid lines of a declaration file of any year, written by the export's
// own record writers, the small verbs that spoil them (set a field, cut the line), and
// the errors of a buffer as a list that a failure prints whole.

#ifndef ZERBAL_TESTS_IMPORT_LINEAS_H_
#define ZERBAL_TESTS_IMPORT_LINEAS_H_

#include <map>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "base/text.h"
#include "fileformat/export2014.h"
#include "fileformat/linea_estatal.h"
#include "fileformat/seleccion.h"
#include "fileformat/layout_reg1.h"
#include "fileformat/layout_reg2.h"
#include "fileformat/layout_reg3.h"
#include "testutil.h"

namespace zerbal::test {

inline Variant DeclaranteLinea(const std::string& nif) {
  return PersonBuffer(0, nif, "Iturri Ibáñez, Miren");
}

// Records in the layout of `year`, written by that year's writers
// (fileformat/seleccion.h).
inline std::string LineaDeclarante(const std::string& nif = "12345678Z", int32_t year = 2014) {
  return fileformat::WritersFor(year).GenerarReg1(DeclaranteLinea(nif), Variant::Null(), "E",
                                                   year);
}

// A resident party in Gipuzkoa, key A, 1000 cents over four quarters (from
// 2011).
inline std::string LineaDeclarado(int32_t year = 2014) {
  return fileformat::WritersFor(year).GenerarReg2(
      year, Buffer({"1",   "20",   "",    "54362315K", "Goikoetxea Larrañaga, Ane",
                    "A",   "1000", "0",   "0",         "",
                    "",    "",     "250", "250",       "250",
                    "250", "0",    "0",   "0",         "0",
                    "0",   "",     "",    "",          "",
                    "",    "0"}),
      DeclaranteLinea("12345678Z"), "E");
}

inline std::string LineaArrendamiento(int32_t year = 2014) {
  return fileformat::WritersFor(year)
      .GenerarReg3(year,
                   Buffer({"1", "20", "", "X2482300W", "Kowalski, Jan", "1800000", "Donostia",
                           "9872023VH5797S0001WX", "CL", "Easo", "21", "", "", "", "20"}),
                   DeclaranteLinea("12345678Z"), "E")
      .AsString();
}

// The same declarant, operation and rental in the state layout of `year`.
inline std::vector<std::string> LineasEstatales(int32_t year) {
  std::map<std::string, std::string> operation = {
      {"dni_cifd", "12345678Z"}, {"nifo", "54362315K"}, {"razon", "Goikoetxea Larrañaga, Ane"},
      {"provo", "20"},           {"claveopo", "A"},     {"importe", "1000"}};
  if (year >= 2011) {
    for (const char* q : {"impopet1", "impopet2", "impopet3", "impopet4"}) operation[q] = "250";
  }
  return {LineaEstatal(year, '1', {{"dni_cifd", "12345678Z"}, {"nombred", "Iturri Ibáñez, Miren"}}),
          LineaEstatal(year, 'D', operation),
          LineaEstatal(year, 'I',
                       {{"dni_cifd", "12345678Z"}, {"nifa", "X2482300W"}, {"razon", "Kowalski, Jan"},
                        {"importe", "1800000"}, {"provi", "20"}, {"municipioa", "Donostia"},
                        {"refcat", "9872023VH5797S0001WX"}, {"viaa", "CL"},
                        {"domicilioa", "Easo"}, {"numeroa", "21"}})};
}

// The layout fields of an operation (record 2) or rental (record 3) line of
// `year`.
inline std::span<const fileformat::Field> Campos(int32_t year, bool operation) {
  using Fields = std::span<const fileformat::Field>;
  if (year >= 2011) {
    return operation ? Fields(fileformat::kCamposReg2_2014) : Fields(fileformat::kCamposReg3_2011);
  }
  if (year >= 2008) {
    return operation ? Fields(fileformat::kCamposReg2_2008) : Fields(fileformat::kCamposReg3_2008);
  }
  return operation ? Fields(fileformat::kCamposReg2_2007) : Fields(fileformat::kCamposReg3_2007);
}

// The line with layout field `name` of `fields` replaced by `value`, padded
// with blanks to the field's width.
inline std::string Set(const std::string& line, std::span<const fileformat::Field> fields,
                       std::string_view name, const std::string& value) {
  const fileformat::Field f = fileformat::FieldNamed(fields, name);
  const int64_t pad = f.width - Len(value);
  return Left(line, f.start - 1) + value + std::string(pad > 0 ? pad : 0, ' ') +
         Mid(line, f.start + f.width);
}

using Change = std::pair<const char*, std::string>;

inline std::string Changed(std::string line, std::span<const fileformat::Field> fields,
                           const std::vector<Change>& changes) {
  for (const auto& [name, value] : changes) line = Set(line, fields, name, value);
  return line;
}

using Errors = std::vector<std::pair<int32_t, std::string>>;

// The errors of a buffer in order, number and text.
inline Errors ErrorList(const Variant& errores) {
  Errors list;
  if (errores(0, 0).IsEmpty()) return list;
  for (int32_t i = 0; i <= errores.AsArray().UBound(2); ++i) {
    list.emplace_back(errores(0, i).AsLong(), errores(1, i).AsString());
  }
  return list;
}

}  // namespace zerbal::test

#endif  // ZERBAL_TESTS_IMPORT_LINEAS_H_
