// The country code of a copied row in the form of the destination year:
// numeric codes up to 2007, two-letter codes from 2008.

#ifndef ZERBAL_RECORDS_DECLARADOS_PAIS_H_
#define ZERBAL_RECORDS_DECLARADOS_PAIS_H_

#include <string>

namespace zerbal::records {

// The numeric code (General::CodigoPais mode 1) when the last character of
// the trimmed code is a letter A to Z; any other code as it is.
std::string PaisNumerico(const std::string& paiso);

// The two-letter code (General::CodigoPais mode 0) when the last character
// of the code, untrimmed, is a digit; any other code as it is.
std::string PaisDosLetras(const std::string& paiso);

}  // namespace zerbal::records

#endif  // ZERBAL_RECORDS_DECLARADOS_PAIS_H_
