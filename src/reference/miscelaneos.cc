#include "reference/miscelaneos.h"

#include "automation/binding.h"
#include "automation/classes.h"
#include "reference/validacion/validacion.h"

namespace zerbal {

bool cMiscelaneos::ValidaNifCif(const std::string& Cadena, bool blnSinLetra) const {
  return validacion::ValidaNifCif(Cadena, blnSinLetra);
}

bool cMiscelaneos::ValidarForeignNIf(const std::string& Cadena, const std::string& strPais) const {
  return validacion::ValidarForeignNif(Cadena, strPais);
}

namespace automation {
namespace {

constexpr Member<cMiscelaneos> kMembers[] = {
    {"ValidaNifCif", Invocation::kMethod, 1, 1,
     [](cMiscelaneos& c, Args& a) {
       return Variant(c.ValidaNifCif(StringArg(a, 0), Given(a, 1) && BooleanArg(a, 1)));
     }},
    {"ValidarForeignNIf", Invocation::kMethod, 2, 0,
     [](cMiscelaneos& c, Args& a) {
       return Variant(c.ValidarForeignNIf(StringArg(a, 0), StringArg(a, 1)));
     }},
};

}  // namespace

std::unique_ptr<AutomationObject> NewMiscelaneos() {
  return Bind<cMiscelaneos>(kMiscelaneosProgId, kMembers);
}

}  // namespace automation
}  // namespace zerbal
