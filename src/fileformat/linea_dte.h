// The line of one declarant in the declarants file that
// cExportacion.ExportarDtes writes.

#ifndef ZERBAL_FILEFORMAT_LINEA_DTE_H_
#define ZERBAL_FILEFORMAT_LINEA_DTE_H_

#include <string>

#include "zerbal/variant.h"

namespace zerbal::fileformat {

// 162 characters without the line end, from the buffer of
// cDeclarante.CargarDeclarante (0 to 17). Positions 100-102 carry the last
// three characters of element 11 as they are. Raises 13 when the street
// number (element 5) is not a number and 94 for a Null text element.
std::string GenerarLineaDte(const Variant& vBufferDeclarante);

}  // namespace zerbal::fileformat

#endif  // ZERBAL_FILEFORMAT_LINEA_DTE_H_
