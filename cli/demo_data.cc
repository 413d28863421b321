#include "cli/demo_data.h"

#include <cmath>

namespace zerbal::cli {
namespace {

Variant Buffer(std::initializer_list<Variant> values) {
  Variant buffer(Array(0, static_cast<int32_t>(values.size()) - 1));
  int32_t i = 0;
  for (const Variant& v : values) buffer(i++) = v;
  return buffer;
}

}  // namespace

Variant SamplePresenter() {
  return Buffer({0, "B20456786", "Aholkularitza D'Elosegi S.L.", "CL", "Kale Nagusia", 12, "",
                 "", "3", "B", 20, "20005", "Donostia", 943, "123456", "Miren Etxeberria", 943,
                 "654321"});
}

const std::vector<DemoDeclarant>& SampleDeclarants() {
  static const std::vector<DemoDeclarant> kDeclarants = {
      {"12345678Z",
       "Iturri Ibáñez, Miren",
       {{"54362315K", "Goikoetxea Larrañaga, Ane", "A", 1250000, 20, ""},
        {"B58378431", "Zubia D'Arrieta S.L.", "B", 3870050, 48, ""},
        {"", "Société Lumière SARL", "A", 560000, 99, "FR"}},
       {{"X2482300W", "Kowalski, Jan", 1800000, "Donostia", "9872023VH5797S0001WX", "CL",
         "Easo", 21}}},
      {"B64717838",
       "Zerbitzuak Elgoibar S.L.",
       {{"54362315K", "Goikoetxea Larrañaga, Ane", "B", 910000, 20, ""},
        {"X2482300W", "Kowalski, Jan", "A", -45000, 20, ""}},
       {{"B58378431", "Zubia D'Arrieta S.L.", 2400000, "Eibar", "1234567WN4813S0001QE", "AV",
         "Otaola", 7}}},
  };
  return kDeclarants;
}

Variant DeclarantBuffer(const DemoDeclarant& d) {
  return Buffer({0, d.nif, d.name, "CL", "Kale Berria", 5, "", "", "2", "A", 20, "20600",
                 "Eibar", 943, "700100", "", 0, ""});
}

Variant OperationBuffer(int32_t declaration, int32_t year, const DemoOperation& op) {
  // From 2011 the year's amount is declared by quarter too.
  const double quarter = year >= 2011 ? std::trunc(op.amount / 4) : 0;
  const double last = year >= 2011 ? op.amount - 3 * quarter : 0;
  return Buffer({0, declaration, op.province, op.country, op.nif, op.name, op.key, op.amount,
                 0.0, 0.0, "", "", "", quarter, quarter, quarter, last, 0.0, 0.0, 0.0, 0.0, 0,
                 "", "", "", "", "", 0.0});
}

Variant RentalBuffer(int32_t declaration, const DemoRental& r) {
  return Buffer({0, declaration, 20, "", r.nif, r.name, r.amount, r.municipality, r.cadastral,
                 r.street_type, r.street, r.number, "", "", "", 20});
}

}  // namespace zerbal::cli
