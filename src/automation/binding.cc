#include "automation/binding.h"

namespace zerbal::automation {
namespace {

// Late binding reports a Null that cannot become the parameter's type as a
// type mismatch; overflow stays overflow.
template <typename F>
auto Coerce(const Args& args, size_t i, F convert) {
  try {
    return convert(args.at(i));
  } catch (const Error& e) {
    if (e.Number() == errc::kInvalidUseOfNull) Raise(errc::kTypeMismatch);
    throw;
  }
}

}  // namespace

int16_t IntegerArg(const Args& a, size_t i) { return Coerce(a, i, CInt); }
int32_t LongArg(const Args& a, size_t i) { return Coerce(a, i, CLng); }
uint8_t ByteArg(const Args& a, size_t i) { return Coerce(a, i, CByte); }
bool BooleanArg(const Args& a, size_t i) { return Coerce(a, i, CBool); }
double DoubleArg(const Args& a, size_t i) { return Coerce(a, i, CDbl); }
std::string StringArg(const Args& a, size_t i) { return Coerce(a, i, CStr); }

size_t FindMember(std::span<const std::string_view> names, std::span<const Invocation> kinds,
                  std::string_view name, Invocation kind) {
  const std::string wanted = UCase(name);
  size_t fallback = names.size();
  for (size_t k = 0; k < names.size(); ++k) {
    if (UCase(names[k]) != wanted) continue;
    if (kinds[k] == kind) return k;
    // Reading a property and calling a method look alike to a late-bound caller.
    const bool alike = kind != Invocation::kPropertyLet && kinds[k] != Invocation::kPropertyLet;
    if (alike && fallback == names.size()) fallback = k;
  }
  if (fallback == names.size()) Raise(errc::kMemberNotFound, name);
  return fallback;
}

void CheckArgumentCount(std::string_view member, int required, int optional, size_t given) {
  if (given < static_cast<size_t>(required) || given > static_cast<size_t>(required + optional)) {
    Raise(errc::kWrongArgumentCount, member);
  }
}

}  // namespace zerbal::automation
