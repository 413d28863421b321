// A recordset as an object, in the style of the data access objects: what
// cConexionDAO.openRecordset returns to a client that drives it by name.

#include "automation/binding.h"
#include "automation/classes.h"
#include "zerbal/recordset.h"

namespace zerbal::automation {
namespace {

using R = Recordset;

// Fields(x) gives the field's value, as a field's default property does: a
// text names the column, any other value is its position from 0.
Variant FieldValue(R& rs, Args& a) {
  if (a[0].Kind() == VarKind::kString) return rs.Fields(a[0].AsString()).Value();
  return rs.Fields(LongArg(a, 0)).Value();
}

constexpr Member<R> kMembers[] = {
    {"RecordCount", Invocation::kPropertyGet, 0, 0, PlainMethod<&R::RecordCount>},
    {"MoveFirst", Invocation::kMethod, 0, 0, PlainMethod<&R::MoveFirst>},
    {"MoveLast", Invocation::kMethod, 0, 0, PlainMethod<&R::MoveLast>},
    {"MoveNext", Invocation::kMethod, 0, 0, PlainMethod<&R::MoveNext>},
    {"MovePrevious", Invocation::kMethod, 0, 0, PlainMethod<&R::MovePrevious>},
    {"EOF", Invocation::kPropertyGet, 0, 0, PlainMethod<&R::Eof>},
    {"BOF", Invocation::kPropertyGet, 0, 0, PlainMethod<&R::Bof>},
    {"Fields", Invocation::kPropertyGet, 1, 0, FieldValue},
    {"FieldCount", Invocation::kPropertyGet, 0, 0, PlainMethod<&R::FieldCount>},
    {"Close", Invocation::kMethod, 0, 0, PlainMethod<&R::Close>},
};

}  // namespace

std::unique_ptr<AutomationObject> WrapRecordset(Recordset recordset) {
  return Bind<R>("Recordset", kMembers, std::move(recordset));
}

}  // namespace zerbal::automation
