// cConexionDAO by name: "zerbal.cConexionDAO". A client that creates one gets
// a connection of its own, not the shared Conexion(); InicializaBD still
// opens on the shared one, as it does whichever instance it is called on.

#include "automation/binding.h"
#include "automation/classes.h"
#include "zerbal/conexion_dao.h"

namespace zerbal::automation {
namespace {

using C = cConexionDAO;

// The optional 16-bit engine option of execute and recordset type of
// openRecordset; both have no effect, and every caller leaves them at 0.
int16_t OptionArg(const Args& a) { return Given(a, 1) ? IntegerArg(a, 1) : int16_t{0}; }

constexpr Member<C> kMembers[] = {
    {"Ddname", Invocation::kPropertyGet, 0, 0, [](C& c, Args&) { return Variant(c.Ddname()); }},
    {"Ddname", Invocation::kPropertyLet, 1, 0,
     [](C& c, Args& a) {
       c.Ddname(StringArg(a, 0));
       return Variant();
     }},
    {"mdb", Invocation::kPropertyLet, 1, 0,
     [](C& c, Args& a) {
       c.mdb(LongArg(a, 0));
       return Variant();
     }},
    {"CrearWorkSpace", Invocation::kMethod, 0, 0, PlainMethod<&C::CrearWorkSpace>},
    {"InicializaBD", Invocation::kMethod, 1, 0, TextMethod<&C::InicializaBD>},
    {"AbrirBD", Invocation::kMethod, 1, 0, TextMethod<&C::AbrirBD>},
    {"Cerrar", Invocation::kMethod, 0, 0, PlainMethod<&C::Cerrar>},
    {"execute", Invocation::kMethod, 1, 1,
     [](C& c, Args& a) {
       c.execute(StringArg(a, 0), OptionArg(a));
       return Variant();
     }},
    {.name = "openRecordset",
     .kind = Invocation::kMethod,
     .required = 1,
     .optional = 1,
     .object = [](C& c, Args& a) {
       return WrapRecordset(c.openRecordset(StringArg(a, 0), OptionArg(a)));
     }},
};

}  // namespace

std::unique_ptr<AutomationObject> NewConexionDAO() {
  return Bind<C>(kConexionDAOProgId, kMembers);
}

}  // namespace zerbal::automation
