// Lines of a file in the state agency's layout, converted into this
// system's layout before the import checks them.
//
// There are four modules, one per period of the state layout, each with a
// dispatcher and three converters. The dispatcher returns a presenter line
// ("0") unchanged, converts a declarant line ("1"), and a type-2 line by
// its character 76: "D" an operation, "I" a rented premises (exact case);
// any other line gives the empty text, which the import refuses.
//
// The converters do not validate, and never fail: a line of any length and
// any bytes converts (past its end a text reads as empty and a number as
// 0; a number that is not plain digits and "-" reads as 0), and the import
// checks the converted line. Converted lines are not padded to a record's
// length: declarant 348 characters in every module; operations 500 (2014,
// 2011), 279 (2008), 249 (2007); premises 500 (2014), 250 (2011, 2008,
// 2007). A negative number ("-5") keeps its "-" and lengthens the line; a
// premises province that reads as 0 is written "0" by its mask "0#", one
// character short (the import refuses such a province).

#ifndef ZERBAL_FILEFORMAT_CONV_DEL_ESTATAL_H_
#define ZERBAL_FILEFORMAT_CONV_DEL_ESTATAL_H_

#include <string>

namespace zerbal::fileformat {

struct ModuloConversion {
  // The dispatcher; `strRuta` is passed on to ConvertirDte, which ignores it.
  std::string (*ConvertirLinea)(const std::string& strLinea, const std::string& strRuta);
  std::string (*ConvertirDte)(const std::string& strLinea, const std::string& strRuta);
  std::string (*ConvertirDeclarado)(const std::string& strLinea);
  std::string (*ConvertirInmueble)(const std::string& strLinea);
};

extern const ModuloConversion ConvDelEstatal_2014;
extern const ModuloConversion ConvDelEstatal_2011;
extern const ModuloConversion ConvDelEstatal_2008;
extern const ModuloConversion ConvDelEstatal_2007;

// The module for a line by its fiscal year, characters 5 to 8 read as a
// number: up to 2007 ConvDelEstatal_2007, 2008 to 2010 _2008, 2011 to 2013
// _2011, from 2014 on, and for anything that is not a number, _2014.
const ModuloConversion& ModuloDelEjercicio(const std::string& strLinea);

// What the import calls for every line of a state-layout file: the line
// converted by its year's module (`strRuta` is the file's path, or empty).
std::string ConvertirLineaEstatal(const std::string& strLinea, const std::string& strRuta);

}  // namespace zerbal::fileformat

#endif  // ZERBAL_FILEFORMAT_CONV_DEL_ESTATAL_H_
