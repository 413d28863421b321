#include "automation/session.h"

#include <istream>
#include <ostream>

#include "automation/json_variant.h"
#include "base/raise.h"
#include "base/text.h"

namespace zerbal::automation {
namespace {

using nlohmann::json;

constexpr std::string_view kBridgeSource = "zerbal.automation";

[[noreturn]] void BadRequest(const std::string& what) {
  Raise(errc::kInvalidProcedureCall, "bad request: " + what, kBridgeSource);
}

const json& Field(const json& request, const char* name) {
  const auto it = request.find(name);
  if (it == request.end()) BadRequest(std::string("\"") + name + "\" is missing");
  return *it;
}

std::string Text(const json& request, const char* name) {
  const json& value = Field(request, name);
  if (!value.is_string()) BadRequest(std::string("\"") + name + "\" must be a string");
  return value.get<std::string>();
}

std::vector<Variant> Arguments(const json& request) {
  std::vector<Variant> args;
  const auto it = request.find("args");
  if (it == request.end()) return args;
  if (!it->is_array()) BadRequest("\"args\" must be a list");
  for (const json& arg : *it) args.push_back(FromJson(arg));
  return args;
}

json Describe(const AutomationObject& object) {
  static constexpr const char* kKinds[] = {"method", "get", "let"};
  json members = json::array();
  for (const MemberInfo& m : object.Members()) {
    members.push_back({{"name", m.name},
                       {"kind", kKinds[static_cast<int>(m.kind)]},
                       {"required", m.required},
                       {"optional", m.optional},
                       {"object", m.returns_object}});
  }
  return members;
}

// The request of `line`, refused (5) past the limits before any of it is
// used: the parser does not recurse, but every later walk over the value
// (copying the id, describing a bad variant, reading nested arrays) goes as
// deep as the value does.
json Parse(std::string_view line) {
  if (line.size() > kMaxLineBytes) {
    BadRequest("a line holds at most " + std::to_string(kMaxLineBytes) + " bytes");
  }
  size_t values = 0;
  const json::parser_callback_t limit = [&values](int depth, json::parse_event_t event, json&) {
    using Event = json::parse_event_t;
    if (depth >= kMaxDepth) {
      BadRequest("JSON nests at most " + std::to_string(kMaxDepth) + " levels");
    }
    const bool value = event == Event::value || event == Event::object_start ||
                       event == Event::array_start;
    if (value && ++values > kMaxValues) {
      BadRequest("a request holds at most " + std::to_string(kMaxValues) + " values");
    }
    return true;
  };
  return json::parse(line, limit);
}

// The next line of `in` without its end into `line`; false when the input
// has ended. Of a line longer than kMaxLineBytes only one byte more is kept,
// enough for Answer to refuse it, while the rest is read and dropped.
bool ReadLine(std::istream& in, std::string& line) {
  line.clear();
  std::streambuf& buffer = *in.rdbuf();
  int c = buffer.sbumpc();
  if (c == std::char_traits<char>::eof()) return false;
  for (; c != std::char_traits<char>::eof() && c != '\n'; c = buffer.sbumpc()) {
    if (line.size() <= kMaxLineBytes) line.push_back(static_cast<char>(c));
  }
  return true;
}

json ErrorAnswer(const json& id, const Error& error) {
  return {{"id", id},
          {"ok", false},
          {"error",
           {{"number", error.Number()},
            {"source", error.Source()},
            {"description", error.Description()}}}};
}

}  // namespace

AutomationObject& Session::Object(const json& request) {
  const json& handle = Field(request, "handle");
  if (!handle.is_number_integer()) BadRequest("\"handle\" must be a whole number");
  const auto it = objects_.find(handle.get<int64_t>());
  if (it == objects_.end()) Raise(errc::kObjectNotSet, "no object has handle " + handle.dump());
  return *it->second;
}

json Session::Keep(std::unique_ptr<AutomationObject> object) {
  const int64_t handle = next_handle_++;
  objects_.emplace(handle, std::move(object));
  return {{"type", "Object"}, {"handle", handle}};
}

json Session::Handle(const json& request) {
  const std::string op = Text(request, "op");
  json answer = {{"ok", true}};
  if (op == "create") {
    std::unique_ptr<AutomationObject> object = CreateObject(Text(request, "class"));
    for (const auto& [name, value] : presets_) {
      for (const MemberInfo& member : object->Members()) {
        if (member.kind == Invocation::kPropertyLet && member.name == name) object->Let(name, value);
      }
    }
    answer["handle"] = Keep(std::move(object))["handle"];
  } else if (op == "let") {
    Object(request).Let(Text(request, "name"), FromJson(Field(request, "value")));
  } else if (op == "get" || op == "call") {
    std::vector<Variant> args = Arguments(request);
    const Invocation kind = op == "get" ? Invocation::kPropertyGet : Invocation::kMethod;
    Returned returned = Object(request).Dispatch(Text(request, "name"), kind, args);
    answer["result"] = returned.object ? Keep(std::move(returned.object)) : ToJson(returned.value);
    json final_args = json::array();
    for (const Variant& arg : args) final_args.push_back(ToJson(arg));
    answer["args"] = std::move(final_args);
  } else if (op == "release") {
    Object(request);
    objects_.erase(Field(request, "handle").get<int64_t>());
  } else if (op == "classes") {
    answer["result"] = RegisteredClasses();
  } else if (op == "members") {
    answer["result"] = Describe(Object(request));
  } else {
    BadRequest("unknown op \"" + op + "\"");
  }
  return answer;
}

std::string Session::Answer(std::string_view line) {
  json id;  // null until the request names one
  json answer;
  try {
    const json request = Parse(line);
    if (!request.is_object()) BadRequest("a request is a JSON object");
    if (const auto it = request.find("id"); it != request.end()) id = *it;
    answer = Handle(request);
    answer["id"] = id;
  } catch (const json::exception& e) {
    // 406: a number past what a double holds. The parser's words quote the
    // text it read, however long: the first of them say enough.
    const int32_t number = e.id == 406 ? errc::kOverflow : errc::kInvalidProcedureCall;
    answer = ErrorAnswer(id, Error(number, std::string(kBridgeSource),
                                   "bad request: " + Abridged(e.what(), 200)));
  } catch (...) {
    answer = ErrorAnswer(id, CurrentError());
  }
  // Text that is not valid UTF-8 cannot travel in JSON: such bytes arrive as U+FFFD.
  return answer.dump(-1, ' ', false, json::error_handler_t::replace);
}

void Session::Serve(std::istream& in, std::ostream& out) {
  std::string line;
  while (ReadLine(in, line)) {
    const bool blank = line.find_first_not_of(" \t\r") == std::string::npos;
    if (blank && line.size() <= kMaxLineBytes) continue;
    out << Answer(line) << '\n' << std::flush;
  }
}

}  // namespace zerbal::automation
