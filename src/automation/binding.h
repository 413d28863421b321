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
#include <vector>

#include "base/convert.h"
#include "base/raise.h"
#include "zerbal/automation.h"

namespace zerbal::automation {

using Args = std::vector<Variant>;

template <typename T>
struct Member {
  std::string_view name;
  Invocation kind;
  int required;
  int optional;
  Variant (*call)(T& self, Args& args);
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

template <typename T>
class Bound final : public AutomationObject {
 public:
  Bound(std::string_view class_name, std::span<const Member<T>> members)
      : class_name_(class_name), members_(members) {
    for (const Member<T>& m : members_) {
      names_.push_back(m.name);
      kinds_.push_back(m.kind);
    }
  }

  Variant Invoke(std::string_view name, Invocation kind, Args& args) override {
    const Member<T>& member = members_[FindMember(names_, kinds_, name, kind)];
    const size_t given = args.size();
    if (given < static_cast<size_t>(member.required) ||
        given > static_cast<size_t>(member.required + member.optional)) {
      Raise(errc::kWrongArgumentCount, member.name);
    }
    return member.call(self_, args);
  }

  std::string_view ClassName() const override { return class_name_; }

  std::vector<MemberInfo> Members() const override {
    std::vector<MemberInfo> out;
    for (const Member<T>& m : members_) {
      out.push_back({std::string(m.name), m.kind, m.required, m.optional});
    }
    return out;
  }

  T& object() { return self_; }

 private:
  T self_;
  std::string_view class_name_;
  std::span<const Member<T>> members_;
  std::vector<std::string_view> names_;
  std::vector<Invocation> kinds_;
};

template <typename T>
std::unique_ptr<AutomationObject> Bind(std::string_view class_name,
                                       std::span<const Member<T>> members) {
  return std::make_unique<Bound<T>>(class_name, members);
}

}  // namespace zerbal::automation

#endif  // ZERBAL_AUTOMATION_BINDING_H_
