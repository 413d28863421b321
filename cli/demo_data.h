// The sample data of `zerbal demo`: a presenter and two declarants with
// their operations and rentals, and the buffers the record classes take.

#ifndef ZERBAL_CLI_DEMO_DATA_H_
#define ZERBAL_CLI_DEMO_DATA_H_

#include <cstdint>
#include <vector>

#include "zerbal/variant.h"

namespace zerbal::cli {

struct DemoOperation {
  const char* nif;  // empty for a party abroad
  const char* name;
  const char* key;  // operation key
  double amount;    // euro cents
  int32_t province;
  const char* country;  // for province 99
};

struct DemoRental {
  const char* nif;
  const char* name;
  double amount;
  const char* municipality;
  const char* cadastral;
  const char* street_type;
  const char* street;
  int32_t number;
};

struct DemoDeclarant {
  const char* nif;
  const char* name;
  std::vector<DemoOperation> operations;
  std::vector<DemoRental> rentals;
};

Variant SamplePresenter();
const std::vector<DemoDeclarant>& SampleDeclarants();

// Save buffers of cDeclarante, cDeclarado and cArrendamiento.
Variant DeclarantBuffer(const DemoDeclarant& d);
Variant OperationBuffer(int32_t declaration, int32_t year, const DemoOperation& op);
Variant RentalBuffer(int32_t declaration, const DemoRental& r);

}  // namespace zerbal::cli

#endif  // ZERBAL_CLI_DEMO_DATA_H_
