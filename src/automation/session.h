// One client's session on the bridge: objects created by name and kept under
// handles, driven by JSON requests, one request and one answer per line.
//
// Requests (every field but "op" may be left out where it is not needed;
// "id" is any JSON value and comes back as it was):
//   {"id": 1, "op": "create", "class": "zerbal.cPresentador"}  -> "handle"
//   {"op": "let",  "handle": 1, "name": "mdbmod", "value": V}
//   {"op": "get",  "handle": 1, "name": "Ejercicio"}          -> "result"
//   {"op": "call", "handle": 1, "name": "M", "args": [V...]}   -> "result", "args"
//   {"op": "release", "handle": 1}
//   {"op": "classes"}                                          -> "result" (names)
//   {"op": "members", "handle": 1}                             -> "result"
// V is a variant as json_variant.h writes it. A "call" answers with the
// method's result and the final value of every argument, so arguments that
// the method changes by reference come back changed. A member that returns
// an object (as a connection's openRecordset does) answers the result
// {"type": "Object", "handle": N}: the object is kept under that new handle
// until it is released, whatever happens to the object that made it. Such
// a result is never an argument: a variant holds no object. "members" lists
// each member's name, kind ("method", "get" or "let"), required and
// optional argument counts, and whether it returns an object ("object").
//
// Answers: {"id": ..., "ok": true, ...} or {"id": ..., "ok": false, "error":
// {"number": N, "source": S, "description": D}}. A request that is not JSON,
// or lacks what its op needs, gets error 5; an unknown handle error 91. The
// session keeps serving after any error.

#ifndef ZERBAL_AUTOMATION_SESSION_H_
#define ZERBAL_AUTOMATION_SESSION_H_

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include <nlohmann/json.hpp>

#include "zerbal/automation.h"

namespace zerbal::automation {

class Session {
 public:
  // The answer line (without its line end) to one request line.
  std::string Answer(std::string_view line);

 private:
  nlohmann::json Handle(const nlohmann::json& request);
  AutomationObject& Object(const nlohmann::json& request);
  // Registers `object` under a new handle; answers {"type": "Object", "handle": N}.
  nlohmann::json Keep(std::unique_ptr<AutomationObject> object);

  std::map<int64_t, std::unique_ptr<AutomationObject>> objects_;
  int64_t next_handle_ = 1;
};

}  // namespace zerbal::automation

#endif  // ZERBAL_AUTOMATION_SESSION_H_
