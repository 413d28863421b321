#include <string>

#include "automation/classes.h"
#include "base/convert.h"
#include "base/raise.h"
#include "reference/miscelaneos.h"
#include "zerbal/automation.h"

namespace zerbal {
namespace {

struct ClassEntry {
  std::string_view progid;
  std::unique_ptr<AutomationObject> (*make)();
};

// Every class a client can create by name.
constexpr ClassEntry kClasses[] = {
    {kMiscelaneosProgId, automation::NewMiscelaneos},
    {automation::kConexionDAOProgId, automation::NewConexionDAO},
    {automation::kDeclaranteProgId, automation::NewDeclarante},
    {automation::kDeclaracionesProgId, automation::NewDeclaraciones},
    {automation::kDeclaradoProgId, automation::NewDeclarado},
    {automation::kArrendamientoProgId, automation::NewArrendamiento},
    {automation::kPresentadorProgId, automation::NewPresentador},
    {automation::kDatosGeneralesProgId, automation::NewDatosGenerales},
    {automation::kExportacionProgId, automation::NewExportacion},
    {automation::kTImpExpProgId, automation::NewTImpExp},
    {automation::kImpExpProgId, automation::NewImpExp},
    {automation::kTraspasoProgId, automation::NewTraspaso},
};

}  // namespace

std::unique_ptr<AutomationObject> CreateObject(std::string_view progid) {
  const std::string wanted = UCase(progid);
  for (const ClassEntry& entry : kClasses) {
    if (UCase(entry.progid) == wanted) return entry.make();
  }
  Raise(errc::kCannotCreateObject, progid);
}

std::vector<std::string> RegisteredClasses() {
  std::vector<std::string> names;
  for (const ClassEntry& entry : kClasses) names.emplace_back(entry.progid);
  return names;
}

Variant AutomationObject::Invoke(std::string_view name, Invocation kind,
                                 std::vector<Variant>& args) {
  if (ReturnsObject(name, kind)) Raise(errc::kTypeMismatch, std::string(name) + " returns an object");
  return Dispatch(name, kind, args).value;
}

std::unique_ptr<AutomationObject> AutomationObject::InvokeObject(std::string_view name,
                                                                 Invocation kind,
                                                                 std::vector<Variant>& args) {
  if (!ReturnsObject(name, kind)) Raise(errc::kTypeMismatch, std::string(name) + " returns no object");
  return Dispatch(name, kind, args).object;
}

Variant AutomationObject::Get(std::string_view name) {
  std::vector<Variant> none;
  return Invoke(name, Invocation::kPropertyGet, none);
}

void AutomationObject::Let(std::string_view name, Variant value) {
  std::vector<Variant> args{std::move(value)};
  Invoke(name, Invocation::kPropertyLet, args);
}

Variant AutomationObject::Call(std::string_view name, std::vector<Variant>& args) {
  return Invoke(name, Invocation::kMethod, args);
}

}  // namespace zerbal
