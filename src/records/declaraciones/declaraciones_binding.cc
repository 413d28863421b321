// cDeclaraciones by name: "zerbal.cDeclaraciones".

#include "automation/binding.h"
#include "automation/classes.h"
#include "automation/path_members.h"
#include "zerbal/declaraciones.h"

namespace zerbal::automation {
namespace {

using C = cDeclaraciones;

constexpr Member<C> kMembers[] = {
    kMdbmod<C>,
    kMdblec<C>,
    {"ObtenerDeclaraciones", Invocation::kMethod, 1, 0, CodeMethod<&C::ObtenerDeclaraciones>},
    {"EliminarDeclaracion", Invocation::kMethod, 1, 0, CodeMethod<&C::EliminarDeclaracion>},
    {"DuplicarDeclaracion", Invocation::kMethod, 4, 0,
     [](C& c, Args& a) {
       return Variant(
           c.DuplicarDeclaracion(LongArg(a, 0), LongArg(a, 1), StringArg(a, 2), LongArg(a, 3)));
     }},
    {"GuardarDeclaracion", Invocation::kMethod, 3, 0,
     [](C& c, Args& a) {
       return Variant(c.GuardarDeclaracion(LongArg(a, 0), StringArg(a, 1), LongArg(a, 2)));
     }},
    {"ObtenerTotalDeclarados", Invocation::kMethod, 1, 0, CodeMethod<&C::ObtenerTotalDeclarados>},
    {"ObtenerTotalArrendamientos", Invocation::kMethod, 1, 0,
     CodeMethod<&C::ObtenerTotalArrendamientos>},
    {"ObtenerDeclaracion", Invocation::kMethod, 2, 0,
     [](C& c, Args& a) { return Variant(c.ObtenerDeclaracion(LongArg(a, 0), LongArg(a, 1))); }},
    {"MaxEjerMon", Invocation::kMethod, 1, 1,
     [](C& c, Args& a) {
       return c.MaxEjerMon(BooleanArg(a, 0), Given(a, 1) ? IntegerArg(a, 1) : int16_t{0});
     }},
    // The declaration code comes as a Variant, converted by the class itself.
    {"ObtenerMonedaDcion", Invocation::kMethod, 1, 0, VariantMethod<&C::ObtenerMonedaDcion>},
    {"ObtenerTotalDeclaradosVarDtes", Invocation::kMethod, 2, 0,
     [](C& c, Args& a) { return c.ObtenerTotalDeclaradosVarDtes(a[0], LongArg(a, 1)); }},
    {"ObtenerEjercicioDcion", Invocation::kMethod, 1, 0, VariantMethod<&C::ObtenerEjercicioDcion>},
};

}  // namespace

std::unique_ptr<AutomationObject> NewDeclaraciones() {
  return Bind<C>(kDeclaracionesProgId, kMembers);
}

}  // namespace zerbal::automation
