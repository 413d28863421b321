#include "fileformat/export2011.h"

#include "fileformat/layout_reg0.h"
#include "fileformat/layout_reg1.h"
#include "fileformat/layout_reg3.h"
#include "fileformat/writers.h"

namespace zerbal::Export2011 {

using namespace fileformat;

std::string GenerarReg0(const Variant& vBufferPresentador, int32_t lngNoTotalDtes,
                        int32_t lngNoTotalDos, int32_t lngEjercicio) {
  return WritePresenterRecord(kReg0_2014, vBufferPresentador, lngNoTotalDtes, lngNoTotalDos,
                              lngEjercicio);
}

std::string GenerarReg1(const Variant& vBufferDeclarante, const Variant& TablaTotales,
                        const std::string& strMoneda, int32_t lngEjercicio) {
  return WriteDeclarantRecord(kReg1_2011, vBufferDeclarante, TablaTotales, strMoneda,
                              lngEjercicio);
}

Variant GenerarReg3(int32_t lngEjercicio, const Variant& vBufferArrendamiento,
                    const Variant& vBufferDeclarante, const std::string& strMoneda) {
  return WriteItemRecord(kReg3_2011, lngEjercicio, vBufferArrendamiento, vBufferDeclarante,
                         strMoneda);
}

}  // namespace zerbal::Export2011
