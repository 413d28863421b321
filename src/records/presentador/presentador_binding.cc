// cPresentador by name: "zerbal.cPresentador".

#include "automation/binding.h"
#include "automation/classes.h"
#include "automation/path_members.h"
#include "zerbal/presentador.h"

namespace zerbal::automation {
namespace {

using C = cPresentador;

constexpr Member<C> kMembers[] = {
    kMdbmod<C>,
    kMdblec<C>,
    // The buffer is taken by reference: the caller's argument is replaced.
    {"CargarPresentador", Invocation::kMethod, 1, 0, VariantMethod<&C::CargarPresentador>},
    {"GuardarPresentador", Invocation::kMethod, 1, 0, VariantMethod<&C::GuardarPresentador>},
    {"EliminarPresentador", Invocation::kMethod, 1, 0, CodeMethod<&C::EliminarPresentador>},
    {"NifRepetido", Invocation::kMethod, 1, 0, TextMethod<&C::NifRepetido>},
};

}  // namespace

std::unique_ptr<AutomationObject> NewPresentador() { return Bind<C>(kPresentadorProgId, kMembers); }

}  // namespace zerbal::automation
