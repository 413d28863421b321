// cExportacion and cTImpExp by name: "zerbal.cExportacion", "zerbal.cTImpExp".

#include "automation/binding.h"
#include "automation/classes.h"
#include "zerbal/exportacion.h"
#include "zerbal/timpexp.h"

namespace zerbal::automation {
namespace {

using C = cExportacion;

constexpr Member<C> kExportacion[] = {
    ZERBAL_BOUND_PROPERTY(C, Declaracion, StringArg),
    ZERBAL_BOUND_PROPERTY(C, mdblec, StringArg),
    ZERBAL_BOUND_PROPERTY(C, mdbmod, StringArg),
    ZERBAL_BOUND_PROPERTY(C, Ejercicio, LongArg),
    ZERBAL_BOUND_PROPERTY(C, Moneda, StringArg),
    ZERBAL_BOUND_PROPERTY(C, NoTotalDeclArren, LongArg),
    {"ExportarDtes", Invocation::kMethod, 2, 0,
     [](C& c, Args& a) { return Variant(c.ExportarDtes(StringArg(a, 0), a[1])); }},
    {"TotalDeclarados", Invocation::kMethod, 3, 0,
     [](C& c, Args& a) {
       return Variant(c.TotalDeclarados(LongArg(a, 0), StringArg(a, 1), StringArg(a, 2)));
     }},
    {"ExportarReg0", Invocation::kMethod, 4, 0,
     [](C& c, Args& a) {
       return Variant(c.ExportarReg0(a[0], LongArg(a, 1), LongArg(a, 2), LongArg(a, 3)));
     }},
    {"ExportarReg1", Invocation::kMethod, 2, 0,
     [](C& c, Args& a) { return Variant(c.ExportarReg1(a[0], IntegerArg(a, 1))); }},
    {"ExportarReg2", Invocation::kMethod, 2, 0,
     [](C& c, Args& a) { return c.ExportarReg2(a[0], IntegerArg(a, 1)); }},
    {"ExportarReg3", Invocation::kMethod, 2, 0,
     [](C& c, Args& a) { return c.ExportarReg3(a[0], IntegerArg(a, 1)); }},
};

constexpr Member<cTImpExp> kTImpExp[] = {
    {"ObtenerDeclarantes", Invocation::kMethod, 2, 0,
     [](cTImpExp& c, Args& a) { return c.ObtenerDeclarantes(LongArg(a, 0), StringArg(a, 1)); }},
    {"TotalDeclarados", Invocation::kMethod, 3, 0,
     [](cTImpExp& c, Args& a) {
       return Variant(c.TotalDeclarados(LongArg(a, 0), StringArg(a, 1), StringArg(a, 2)));
     }},
};

}  // namespace

std::unique_ptr<AutomationObject> NewExportacion() {
  return Bind<C>(kExportacionProgId, kExportacion);
}

std::unique_ptr<AutomationObject> NewTImpExp() { return Bind<cTImpExp>(kTImpExpProgId, kTImpExp); }

}  // namespace zerbal::automation
