// Raising errors, and the one way of raising them again with a prefix.

#ifndef ZERBAL_BASE_RAISE_H_
#define ZERBAL_BASE_RAISE_H_

#include <cstdint>
#include <string_view>
#include <utility>

#include "zerbal/error.h"

namespace zerbal {

// Source of the errors that the runtime itself raises.
inline constexpr std::string_view kRuntimeSource = "zerbal";

// Raises error `number` whose description is its standard text, followed by
// ": " and `detail` when a detail is given.
[[noreturn]] void Raise(int32_t number, std::string_view detail = {},
                        std::string_view source = kRuntimeSource);

// The exception being handled, as an Error: an Error unchanged, an
// allocation failure as 7, anything else as 51 with its message. Call only
// inside a catch block.
Error CurrentError();

// Raises the exception being handled again as an Error whose description
// starts with `prefix`; number, source, help file and help context stay as
// they were. Call only inside a catch block.
[[noreturn]] void RaiseAgainWithPrefix(std::string_view prefix);

// Raises the exception being handled again as an Error whose source is
// `source`; number, description, help file and help context stay as they
// were. Call only inside a catch block.
[[noreturn]] void RaiseAgainWithSource(std::string_view source);

// Runs `body`; any error escaping it is raised again with `prefix` in front
// of its description. This is how every method with a trapping handler
// reports ("cDeclarante.EliminarDeclarante ").
template <typename F>
decltype(auto) WithPrefix(std::string_view prefix, F&& body) {
  try {
    return std::forward<F>(body)();
  } catch (...) {
    RaiseAgainWithPrefix(prefix);
  }
}

// Runs `body`; any error escaping it is raised again as coming from
// `source` ("Importacion.ValidarDte"): how the import's validators report a
// failure that is not the data's.
template <typename F>
decltype(auto) WithSource(std::string_view source, F&& body) {
  try {
    return std::forward<F>(body)();
  } catch (...) {
    RaiseAgainWithSource(source);
  }
}

}  // namespace zerbal

#endif  // ZERBAL_BASE_RAISE_H_
