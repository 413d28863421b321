// The write-only mdbmod and mdblec that every record class takes before any
// call, as members of its binding.

#ifndef ZERBAL_AUTOMATION_PATH_MEMBERS_H_
#define ZERBAL_AUTOMATION_PATH_MEMBERS_H_

#include "automation/binding.h"

namespace zerbal::automation {

template <typename T>
inline constexpr Member<T> kMdbmod = {"mdbmod", Invocation::kPropertyLet, 1, 0,
                                      [](T& c, Args& a) {
                                        c.mdbmod(StringArg(a, 0));
                                        return Variant();
                                      }};

template <typename T>
inline constexpr Member<T> kMdblec = {"mdblec", Invocation::kPropertyLet, 1, 0,
                                      [](T& c, Args& a) {
                                        c.mdblec(StringArg(a, 0));
                                        return Variant();
                                      }};

}  // namespace zerbal::automation

#endif  // ZERBAL_AUTOMATION_PATH_MEMBERS_H_
