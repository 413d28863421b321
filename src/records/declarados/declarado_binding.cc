// cDeclarado by name: "zerbal.cDeclarado".

#include "automation/binding.h"
#include "automation/classes.h"
#include "automation/path_members.h"
#include "zerbal/declarado.h"

namespace zerbal::automation {
namespace {

using C = cDeclarado;

constexpr Member<C> kMembers[] = {
    kMdbmod<C>,
    kMdblec<C>,
    {"DeclaradosCoincidentes", Invocation::kMethod, 11, 0,
     [](C& c, Args& a) {
       return Variant(c.DeclaradosCoincidentes(
           StringArg(a, 0), StringArg(a, 1), StringArg(a, 2), StringArg(a, 3), StringArg(a, 4),
           StringArg(a, 5), LongArg(a, 6), LongArg(a, 7), StringArg(a, 8), StringArg(a, 9),
           StringArg(a, 10)));
     }},
    {"GuardarDeclarado", Invocation::kMethod, 1, 0, VariantMethod<&C::GuardarDeclarado>},
    {"ObtenerDeclarados", Invocation::kMethod, 1, 0, CodeMethod<&C::ObtenerDeclarados>},
    {"ObtenerDeclaradosOpe", Invocation::kMethod, 1, 0, CodeMethod<&C::ObtenerDeclaradosOpe>},
    {"CargarDeclarado", Invocation::kMethod, 1, 0, CodeMethod<&C::CargarDeclarado>},
    {"EliminarDeclarado", Invocation::kMethod, 1, 0, CodeMethod<&C::EliminarDeclarado>},
    // A 16-bit parameter: a code beyond it is an overflow of the argument.
    {"SeImportanTodos", Invocation::kMethod, 1, 0,
     [](C& c, Args& a) { return Variant(c.SeImportanTodos(IntegerArg(a, 0))); }},
    {"ObtenerDeclaradosSinValoresEnCamposNuevos2014", Invocation::kMethod, 1, 0,
     CodeMethod<&C::ObtenerDeclaradosSinValoresEnCamposNuevos2014>},
};

}  // namespace

std::unique_ptr<AutomationObject> NewDeclarado() { return Bind<C>(kDeclaradoProgId, kMembers); }

}  // namespace zerbal::automation
