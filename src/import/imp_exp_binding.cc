// cImpExp by name: "zerbal.cImpExp". Arguments the methods take by
// reference come back in the caller's arguments as the method left them:
// the line, the values and errors buffers, the year and currency.

#include "automation/binding.h"
#include "automation/classes.h"
#include "zerbal/impexp.h"

namespace zerbal::automation {
namespace {

using C = cImpExp;

// A declarant line with its values and errors buffers (arguments 1 and 2).
template <uint8_t (C::*kMethod)(const std::string&, Variant&, Variant&)>
Variant DeclarantLine(C& c, Args& a) {
  return Variant((c.*kMethod)(StringArg(a, 0), a[1], a[2]));
}

constexpr Member<C> kMembers[] = {
    ZERBAL_BOUND_PROPERTY(C, mdbmod, StringArg),
    ZERBAL_BOUND_PROPERTY(C, mdblec, StringArg),
    ZERBAL_BOUND_PROPERTY(C, EjercicioMin, LongArg),
    ZERBAL_BOUND_PROPERTY(C, EjercicioMax, LongArg),
    ZERBAL_BOUND_PROPERTY(C, Declaracion, StringArg),
    ZERBAL_BOUND_PROPERTY(C, RechazarDeclaracion, BooleanArg),
    ZERBAL_BOUND_PROPERTY(C, Convertir, BooleanArg),
    ZERBAL_BOUND_PROPERTY(C, Resultado, ByteArg),
    {"Sujeto", Invocation::kPropertyGet, 0, 0, [](C& c, Args&) { return Variant(c.Sujeto()); }},
    {"ObtenerDeclarantes", Invocation::kMethod, 2, 0,
     [](C& c, Args& a) {
       int32_t ejercicio = LongArg(a, 0);
       std::string moneda = StringArg(a, 1);
       Variant declarantes = c.ObtenerDeclarantes(ejercicio, moneda);
       a[0] = ejercicio;
       a[1] = moneda;
       return declarantes;
     }},
    {"importDte", Invocation::kMethod, 3, 0, DeclarantLine<&C::importDte>},
    {"ImportarDte_Cion", Invocation::kMethod, 3, 0, DeclarantLine<&C::ImportarDte_Cion>},
    {"importSpte", Invocation::kMethod, 3, 1,
     [](C& c, Args& a) {
       std::string linea = StringArg(a, 0);
       c.importSpte(linea, a[1], BooleanArg(a, 2), Given(a, 3) ? StringArg(a, 3) : "");
       a[0] = linea;
       return Variant();
     }},
    {"importOpeArr", Invocation::kMethod, 5, 0,
     [](C& c, Args& a) {
       std::string linea = StringArg(a, 0);
       const uint8_t resultado = c.importOpeArr(linea, a[1], a[2], BooleanArg(a, 3), ByteArg(a, 4));
       a[0] = linea;
       return Variant(resultado);
     }},
    {"ComprobarDeclaracion", Invocation::kMethod, 2, 0,
     [](C& c, Args& a) { return Variant(c.ComprobarDeclaracion(a[0], a[1])); }},
};

}  // namespace

std::unique_ptr<AutomationObject> NewImpExp() { return Bind<C>(kImpExpProgId, kMembers); }

}  // namespace zerbal::automation
