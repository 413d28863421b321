// cExportacion and cTImpExp by name: "zerbal.cExportacion", "zerbal.cTImpExp".

#include "automation/binding.h"
#include "automation/classes.h"
#include "zerbal/exportacion.h"
#include "zerbal/timpexp.h"

namespace zerbal::automation {
namespace {

using C = cExportacion;

// A property of cExportacion that is read and written, as its two members.
#define ZERBAL_PROPERTY(Name, Convert)                                         \
  {#Name, Invocation::kPropertyGet, 0, 0,                                      \
   [](C& c, Args&) { return Variant(c.Name()); }},                             \
  {#Name, Invocation::kPropertyLet, 1, 0, [](C& c, Args& a) {                  \
     c.Name(Convert(a, 0));                                                    \
     return Variant();                                                         \
   }}

constexpr Member<C> kExportacion[] = {
    ZERBAL_PROPERTY(Declaracion, StringArg),
    ZERBAL_PROPERTY(mdblec, StringArg),
    ZERBAL_PROPERTY(mdbmod, StringArg),
    ZERBAL_PROPERTY(Ejercicio, LongArg),
    ZERBAL_PROPERTY(Moneda, StringArg),
    ZERBAL_PROPERTY(NoTotalDeclArren, LongArg),
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

#undef ZERBAL_PROPERTY

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
