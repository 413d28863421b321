#include "fileformat/linea_dte.h"

#include "base/convert.h"
#include "base/text.h"
#include "fileformat/layout_dte.h"

namespace zerbal::fileformat {

std::string GenerarLineaDte(const Variant& vBufferDeclarante) {
  RecordInput input;
  input.persona = &vBufferDeclarante;
  input.values[kUltimosCodPostal] = Right(CStr(vBufferDeclarante(11)), 3);
  return WriteRecord(kLineaDte, input);
}

}  // namespace zerbal::fileformat
