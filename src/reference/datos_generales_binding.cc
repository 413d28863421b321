// cDatosGenerales by name: "zerbal.cDatosGenerales".

#include "automation/binding.h"
#include "automation/classes.h"
#include "automation/path_members.h"
#include "zerbal/datos_generales.h"

namespace zerbal::automation {
namespace {

using C = cDatosGenerales;

// The lookups of one code in a language.
template <std::string (C::*kLookup)(const std::string&, int32_t)>
Variant CodeLookup(C& c, Args& a) {
  return Variant((c.*kLookup)(StringArg(a, 0), LongArg(a, 1)));
}

constexpr Member<C> kMembers[] = {
    kMdbmod<C>,
    kMdblec<C>,
    {"ValidaNifIntra", Invocation::kMethod, 2, 0,
     [](C& c, Args& a) { return Variant(c.ValidaNifIntra(StringArg(a, 0), StringArg(a, 1))); }},
    {"NumeroDeclarantes", Invocation::kMethod, 0, 0, PlainMethod<&C::NumeroDeclarantes>},
    {"CargarResultado", Invocation::kMethod, 1, 0, TextMethod<&C::CargarResultado>},
    {"ObtenerDescriVia", Invocation::kMethod, 2, 0, CodeLookup<&C::ObtenerDescriVia>},
    {"ObtenerNombreProvincia", Invocation::kMethod, 2, 0, CodeLookup<&C::ObtenerNombreProvincia>},
    {"ObtenerDesClave", Invocation::kMethod, 3, 0,
     [](C& c, Args& a) {
       return Variant(c.ObtenerDesClave(StringArg(a, 0), StringArg(a, 1), LongArg(a, 2)));
     }},
    {"ObtenerDescripciones", Invocation::kMethod, 1, 0, CodeMethod<&C::ObtenerDescripciones>},
    {"ObtenerDesPais", Invocation::kMethod, 2, 0,
     [](C& c, Args& a) { return Variant(c.ObtenerDesPais(LongArg(a, 0), LongArg(a, 1))); }},
    {"ObtenerNombrePaisIntra", Invocation::kMethod, 2, 0, CodeLookup<&C::ObtenerNombrePaisIntra>},
    {"RecogerRutaURL", Invocation::kMethod, 1, 0,
     [](C& c, Args& a) { return Variant(c.RecogerRutaURL(ByteArg(a, 0))); }},
    {"ValidaNifCif", Invocation::kMethod, 1, 1,
     [](C& c, Args& a) {
       return Variant(c.ValidaNifCif(StringArg(a, 0), Given(a, 1) && BooleanArg(a, 1)));
     }},
    {"ObtenerIdioma", Invocation::kMethod, 0, 0, PlainMethod<&C::ObtenerIdioma>},
    {"ObtenerActOnline", Invocation::kMethod, 0, 0, PlainMethod<&C::ObtenerActOnline>},
    {"CambiarIdioma", Invocation::kMethod, 1, 0,
     [](C& c, Args& a) {
       c.CambiarIdioma(StringArg(a, 0));
       return Variant();
     }},
    {"GuardarActOnline", Invocation::kMethod, 1, 0,
     [](C& c, Args& a) { return c.GuardarActOnline(IntegerArg(a, 0)); }},
    {"ObtenerURLAct", Invocation::kMethod, 0, 0, PlainMethod<&C::ObtenerURLAct>},
};

}  // namespace

std::unique_ptr<AutomationObject> NewDatosGenerales() {
  return Bind<C>(kDatosGeneralesProgId, kMembers);
}

}  // namespace zerbal::automation
