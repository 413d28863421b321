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
// or lacks what its op needs, gets error 5; a number too large for the type
// it gives or goes to error 6; an unknown handle error 91. The session keeps
// serving after any error.
//
// Limits, so that every request is answered in time and memory of the order
// of its own size: a line holds at most kMaxLineBytes bytes (a longer one is
// read to its end without being kept, and answered 5 with a null id), JSON
// nests at most kMaxDepth levels, and a request holds at most kMaxValues
// JSON values (every array element counts). Beyond any of them the request
// is answered 5 and nothing of it runs. An array's bounds must give exactly
// as many elements as it lists, so no bound can make the bridge allocate or
// loop beyond what the line itself holds.

#ifndef ZERBAL_AUTOMATION_SESSION_H_
#define ZERBAL_AUTOMATION_SESSION_H_

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <nlohmann/json.hpp>

#include "zerbal/automation.h"

namespace zerbal::automation {

// The largest buffer the library makes, 32,767 rows of 28 columns, fits in
// both as plain values; a request that holds all it may takes a few hundred
// megabytes at most while it is answered.
inline constexpr size_t kMaxLineBytes = size_t{32} << 20;
inline constexpr size_t kMaxValues = size_t{1} << 20;
// Each array inside a variant takes two levels (the variant and its list).
inline constexpr int kMaxDepth = 64;

class Session {
 public:
  // Values every object created afterwards gets as its properties of these
  // names (case as the class gives them), where it has them: the databases
  // named on the command line, so that a client need not send them.
  void Preset(std::string name, Variant value) { presets_.emplace_back(std::move(name), std::move(value)); }

  // The answer line (without its line end) to one request line.
  std::string Answer(std::string_view line);

  // Answers each line of `in` on `out`, one line each and flushed at once,
  // until the input ends; blank lines get no answer.
  void Serve(std::istream& in, std::ostream& out);

 private:
  nlohmann::json Handle(const nlohmann::json& request);
  AutomationObject& Object(const nlohmann::json& request);
  // Registers `object` under a new handle; answers {"type": "Object", "handle": N}.
  nlohmann::json Keep(std::unique_ptr<AutomationObject> object);

  std::map<int64_t, std::unique_ptr<AutomationObject>> objects_;
  std::vector<std::pair<std::string, Variant>> presets_;
  int64_t next_handle_ = 1;
};

}  // namespace zerbal::automation

#endif  // ZERBAL_AUTOMATION_SESSION_H_
