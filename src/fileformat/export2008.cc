#include "fileformat/export2008.h"

#include "fileformat/layout_reg2.h"
#include "fileformat/layout_reg3.h"
#include "fileformat/writers.h"

namespace zerbal::Export2008 {

using namespace fileformat;

std::string GenerarReg2(int32_t lngEjercicio, const Variant& vBufferDeclarado,
                        const Variant& vBufferDeclarante, const std::string& strMoneda) {
  return WriteItemRecord(kReg2_2008, lngEjercicio, vBufferDeclarado, vBufferDeclarante,
                         strMoneda);
}

Variant GenerarReg3(int32_t lngEjercicio, const Variant& vBufferArrendamiento,
                    const Variant& vBufferDeclarante, const std::string& strMoneda) {
  return WriteItemRecord(kReg3_2008, lngEjercicio, vBufferArrendamiento, vBufferDeclarante,
                         strMoneda);
}

}  // namespace zerbal::Export2008
