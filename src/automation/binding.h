// How a class is bound for use by name: a table of members, each a name, a
// kind, its argument counts and a function that converts the arguments,
// calls the class and writes back what it takes by reference.

#ifndef ZERBAL_AUTOMATION_BINDING_H_
#define ZERBAL_AUTOMATION_BINDING_H_

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "base/convert.h"
#include "base/raise.h"
#include "zerbal/automation.h"

namespace zerbal::automation {

using Args = std::vector<Variant>;

// One member of class T: `call` runs it and gives its value; a member that
// returns an object has `object` instead (and no `call`).
template <typename T>
struct Member {
  std::string_view name;
  Invocation kind;
  int required;
  int optional;
  Variant (*call)(T& self, Args& args) = nullptr;
  std::unique_ptr<AutomationObject> (*object)(T& self, Args& args) = nullptr;
};

// Whether the caller gave argument `i`.
inline bool Given(const Args& args, size_t i) { return i < args.size(); }

// Arguments converted to the parameter's type, as late binding converts
// them: what cannot be converted is a type mismatch (13).
int16_t IntegerArg(const Args& args, size_t i);
int32_t LongArg(const Args& args, size_t i);
uint8_t ByteArg(const Args& args, size_t i);
bool BooleanArg(const Args& args, size_t i);
double DoubleArg(const Args& args, size_t i);
std::string StringArg(const Args& args, size_t i);

// Finds `name` among members (ignoring case) for the invocation `kind`;
// raises 438 when there is none.
size_t FindMember(std::span<const std::string_view> names, std::span<const Invocation> kinds,
                  std::string_view name, Invocation kind);

// Raises 450 unless `given` arguments lie between `required` and
// `required + optional`.
void CheckArgumentCount(std::string_view member, int required, int optional, size_t given);

// What a method gives, as the Variant a late-bound caller receives: Empty
// for a method without a result.
template <typename F>
Variant AsResult(F&& call) {
  if constexpr (std::is_void_v<decltype(call())>) {
    call();
    return Variant();
  } else {
    return Variant(call());
  }
}

// The class of a method, for the `call` makers below.
template <typename M>
struct MethodOf;
template <typename T, typename R, typename... A>
struct MethodOf<R (T::*)(A...)> {
  using Class = T;
};
template <typename T, typename R, typename... A>
struct MethodOf<R (T::*)(A...) const> {
  using Class = T;
};

// The `call` of a method without arguments.
template <auto kMethod>
Variant PlainMethod(typename MethodOf<decltype(kMethod)>::Class& self, Args&) {
  return AsResult([&] { return (self.*kMethod)(); });
}

// The `call` of a method whose one argument is a string.
template <auto kMethod>
Variant TextMethod(typename MethodOf<decltype(kMethod)>::Class& self, Args& args) {
  return AsResult([&] { return (self.*kMethod)(StringArg(args, 0)); });
}

// The `call` of a method whose one argument is a 32-bit code.
template <auto kMethod>
Variant CodeMethod(typename MethodOf<decltype(kMethod)>::Class& self, Args& args) {
  return AsResult([&] { return (self.*kMethod)(LongArg(args, 0)); });
}

// The `call` of a method whose one argument is a Variant (a buffer), given
// to the method as the caller passed it.
template <auto kMethod>
Variant VariantMethod(typename MethodOf<decltype(kMethod)>::Class& self, Args& args) {
  return AsResult([&] { return (self.*kMethod)(args[0]); });
}

// A property of class T that is read and written through its getter and
// setter of the same name, as its two members (`Convert` reads the value:
// StringArg, LongArg, ...).
#define ZERBAL_BOUND_PROPERTY(T, Name, Convert)                                \
  {#Name, ::zerbal::Invocation::kPropertyGet, 0, 0,                            \
   [](T& c, ::zerbal::automation::Args&) { return ::zerbal::Variant(c.Name()); }}, \
  {#Name, ::zerbal::Invocation::kPropertyLet, 1, 0,                            \
   [](T& c, ::zerbal::automation::Args& a) {                                   \
     c.Name(Convert(a, 0));                                                    \
     return ::zerbal::Variant();                                               \
   }}

template <typename T>
class Bound final : public AutomationObject {
 public:
  // `self_` is made from `init`: nothing for a class a client creates, the
  // wrapped value for an object that a member returns.
  template <typename... Init>
  Bound(std::string_view class_name, std::span<const Member<T>> members, Init&&... init)
      : self_(std::forward<Init>(init)...), class_name_(class_name), members_(members) {
    for (const Member<T>& m : members_) {
      names_.push_back(m.name);
      kinds_.push_back(m.kind);
    }
  }

  Returned Dispatch(std::string_view name, Invocation kind, Args& args) override {
    const Member<T>& member = Find(name, kind);
    CheckArgumentCount(member.name, member.required, member.optional, args.size());
    if (member.object) return {Variant(), member.object(self_, args)};
    return {member.call(self_, args), nullptr};
  }

  bool ReturnsObject(std::string_view name, Invocation kind) const override {
    return Find(name, kind).object != nullptr;
  }

  std::string_view ClassName() const override { return class_name_; }

  std::vector<MemberInfo> Members() const override {
    std::vector<MemberInfo> out;
    for (const Member<T>& m : members_) {
      out.push_back({std::string(m.name), m.kind, m.required, m.optional, m.object != nullptr});
    }
    return out;
  }

  T& object() { return self_; }

 private:
  const Member<T>& Find(std::string_view name, Invocation kind) const {
    return members_[FindMember(names_, kinds_, name, kind)];
  }

  T self_;
  std::string_view class_name_;
  std::span<const Member<T>> members_;
  std::vector<std::string_view> names_;
  std::vector<Invocation> kinds_;
};

// A bound object of class T; `init` as for Bound.
template <typename T, typename... Init>
std::unique_ptr<AutomationObject> Bind(std::string_view class_name,
                                       std::span<const Member<T>> members, Init&&... init) {
  return std::make_unique<Bound<T>>(class_name, members, std::forward<Init>(init)...);
}

}  // namespace zerbal::automation

#endif  // ZERBAL_AUTOMATION_BINDING_H_
