// cArrendamiento by name: "zerbal.cArrendamiento".

#include "automation/binding.h"
#include "automation/classes.h"
#include "automation/path_members.h"
#include "zerbal/arrendamiento.h"

namespace zerbal::automation {
namespace {

using C = cArrendamiento;

constexpr Member<C> kMembers[] = {
    kMdbmod<C>,
    kMdblec<C>,
    {"GuardarArrendamiento_2007", Invocation::kMethod, 1, 0,
     VariantMethod<&C::GuardarArrendamiento_2007>},
    {"GuardarArrendamiento", Invocation::kMethod, 1, 0, VariantMethod<&C::GuardarArrendamiento>},
    {"ObtenerArrendamientos", Invocation::kMethod, 1, 0, CodeMethod<&C::ObtenerArrendamientos>},
    {"ObtenerTodosLosArr", Invocation::kMethod, 1, 0, CodeMethod<&C::ObtenerTodosLosArr>},
    {"CargarArrendamiento", Invocation::kMethod, 1, 0, CodeMethod<&C::CargarArrendamiento>},
    {"EliminarArrendamiento", Invocation::kMethod, 1, 0, CodeMethod<&C::EliminarArrendamiento>},
};

}  // namespace

std::unique_ptr<AutomationObject> NewArrendamiento() {
  return Bind<C>(kArrendamientoProgId, kMembers);
}

}  // namespace zerbal::automation
