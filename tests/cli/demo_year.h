// The demo's sample declarants stored with their declarations of one year,
// as the tests of the export and the import need them.

#ifndef ZERBAL_TESTS_CLI_DEMO_YEAR_H_
#define ZERBAL_TESTS_CLI_DEMO_YEAR_H_

#include <string>

#include "cli/demo_data.h"
#include "zerbal/arrendamiento.h"
#include "zerbal/declaraciones.h"
#include "zerbal/declarado.h"
#include "zerbal/declarante.h"
#include "zerbal/presentador.h"

namespace zerbal::test {

// Before 2011 the operation with a negative amount is left out: the
// unsigned layouts have no place for it. `currency` "P": the amounts are
// taken as pesetas.
inline void FillDemoYear(const std::string& data, int32_t year, bool presenter,
                         const std::string& currency = "E") {
  cDeclarante declarante;
  cDeclaraciones declaraciones;
  cDeclarado declarado;
  cArrendamiento arrendamiento;
  for (PathProperties* c : std::initializer_list<PathProperties*>{
           &declarante, &declaraciones, &declarado, &arrendamiento}) {
    c->mdbmod(data);
  }
  for (const cli::DemoDeclarant& d : cli::SampleDeclarants()) {
    const int32_t declaration = declaraciones.GuardarDeclaracion(
        year, currency, declarante.GuardarDeclarante(cli::DeclarantBuffer(d)));
    for (const cli::DemoOperation& op : d.operations) {
      if (year < 2011 && op.amount < 0) continue;
      declarado.GuardarDeclarado(cli::OperationBuffer(declaration, year, op));
    }
    for (const cli::DemoRental& r : d.rentals) {
      arrendamiento.GuardarArrendamiento(cli::RentalBuffer(declaration, r));
    }
  }
  if (presenter) {
    cPresentador p;
    p.mdbmod(data);
    p.GuardarPresentador(cli::SamplePresenter());
  }
}

}  // namespace zerbal::test

#endif  // ZERBAL_TESTS_CLI_DEMO_YEAR_H_
