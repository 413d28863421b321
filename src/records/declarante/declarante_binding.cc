// cDeclarante by name: "zerbal.cDeclarante".

#include "automation/binding.h"
#include "automation/classes.h"
#include "automation/path_members.h"
#include "zerbal/declarante.h"

namespace zerbal::automation {
namespace {

using C = cDeclarante;

constexpr Member<C> kMembers[] = {
    kMdbmod<C>,
    kMdblec<C>,
    // The buffer, the second argument, is taken by reference and replaced.
    {"CargarDeclarante", Invocation::kMethod, 2, 0,
     [](C& c, Args& a) {
       c.CargarDeclarante(LongArg(a, 0), a[1]);
       return Variant();
     }},
    {"GuardarDeclarante", Invocation::kMethod, 1, 0, VariantMethod<&C::GuardarDeclarante>},
    {"EliminarDeclarante", Invocation::kMethod, 1, 1,
     [](C& c, Args& a) {
       c.EliminarDeclarante(LongArg(a, 0), Given(a, 1) && BooleanArg(a, 1));
       return Variant();
     }},
    {"ObtenerUltimosDeclarantes", Invocation::kMethod, 0, 0,
     PlainMethod<&C::ObtenerUltimosDeclarantes>},
    {"NifRepetido", Invocation::kMethod, 1, 0, TextMethod<&C::NifRepetido>},
    {"ObtenerDeclarantes", Invocation::kMethod, 0, 0, PlainMethod<&C::ObtenerDeclarantes>},
};

}  // namespace

std::unique_ptr<AutomationObject> NewDeclarante() { return Bind<C>(kDeclaranteProgId, kMembers); }

}  // namespace zerbal::automation
