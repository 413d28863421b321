// cTraspaso by name: "zerbal.cTraspaso".

#include "automation/binding.h"
#include "automation/classes.h"
#include "automation/path_members.h"
#include "zerbal/traspaso.h"

namespace zerbal::automation {
namespace {

using C = cTraspaso;

constexpr Member<C> kMembers[] = {
    kMdbmod<C>,
    kMdblec<C>,
    {"mdbPath", Invocation::kPropertyLet, 1, 0, TextMethod<&C::mdbPath>},
    {"Traspaso", Invocation::kMethod, 0, 0, PlainMethod<&C::Traspaso>},
};

}  // namespace

std::unique_ptr<AutomationObject> NewTraspaso() { return Bind<C>(kTraspasoProgId, kMembers); }

}  // namespace zerbal::automation
