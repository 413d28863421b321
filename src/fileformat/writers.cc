#include "fileformat/writers.h"

#include <string>
#include <string_view>

#include "base/convert.h"
#include "base/text.h"
#include "reference/general.h"

namespace zerbal::fileformat {
namespace {

void SetKey(RecordInput& input, char key, const Variant& count, const Variant& sum) {
  const bool negative = General::BC(sum) < 0;
  input.values[TotalIndex(key, kCuenta)] = count;
  input.values[TotalIndex(key, kSigno)] = negative ? "N" : " ";
  input.values[TotalIndex(key, kMagnitud)] = negative ? Variant(Mid(CStr(sum), 2)) : sum;
  input.values[TotalIndex(key, kSuma)] = sum;
}

void LoadKeyTotals(const Variant& TablaTotales, RecordInput& input) {
  constexpr std::string_view kKeys = "ABCDE";
  for (char key : kKeys) SetKey(input, key, int32_t{0}, int32_t{0});
  if (TablaTotales.IsNull()) return;
  const Array& tabla = TablaTotales.AsArray();
  for (int32_t row = 1; row <= tabla.UBound(2); ++row) {
    const std::string key = UCase(CStr(tabla(0, row)));
    if (key.size() == 1 && kKeys.find(key[0]) != std::string_view::npos) {
      SetKey(input, key[0], tabla(2, row), tabla(1, row));
    }
  }
}

}  // namespace

std::string WritePresenterRecord(const Layout& layout, const Variant& vBufferPresentador,
                                 int32_t lngNoTotalDtes, int32_t lngNoTotalDos,
                                 int32_t lngEjercicio) {
  RecordInput input;
  input.persona = &vBufferPresentador;
  input.values[kEjercicio] = lngEjercicio;
  input.values[kNoTotalDtes] = lngNoTotalDtes;
  input.values[kNoTotalDos] = lngNoTotalDos;
  input.values[kCodigoPostal] =
      CStr(vBufferPresentador(10)) + Right("000" + CStr(vBufferPresentador(11)), 3);
  return WriteRecord(layout, input);
}

std::string WriteDeclarantRecord(const Layout& layout, const Variant& vBufferDeclarante,
                                 const Variant& TablaTotales, const std::string& strMoneda,
                                 int32_t lngEjercicio) {
  RecordInput input;
  input.persona = &vBufferDeclarante;
  input.moneda = strMoneda;
  input.values[kEjercicio] = lngEjercicio;
  LoadKeyTotals(TablaTotales, input);
  return WriteRecord(layout, input);
}

std::string WriteItemRecord(const Layout& layout, int32_t lngEjercicio, const Variant& vBufferItem,
                            const Variant& vBufferDeclarante, const std::string& strMoneda) {
  RecordInput input;
  input.persona = &vBufferDeclarante;
  input.record = &vBufferItem;
  input.moneda = strMoneda;
  input.values[kEjercicio] = lngEjercicio;
  return WriteRecord(layout, input);
}

}  // namespace zerbal::fileformat
