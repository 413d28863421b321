// Driving the library's classes by name, as an automation client does: an
// object is created by its class name (ProgID) and its properties and
// methods are used by name with Variant arguments.
//
// The library's public classes are registered as "zerbal.<class name>"
// ("zerbal.cDeclarante"). Names ignore case. An unknown class raises 429, an unknown member 438, a
// wrong number of arguments 450, and an argument that cannot be converted to
// the member's parameter 13 (6 when it is out of the parameter's range).
// Errors raised by the member itself come out unchanged.
//
// A member may return an object instead of a value (MemberInfo::
// returns_object), as a connection's openRecordset returns a recordset. A
// Variant never holds an object: such a member is used through Dispatch or
// InvokeObject, which hand the new object to the caller, and Invoke refuses
// it (13). An object returned this way cannot be created by name, and it
// lives on its own: releasing the object that made it does not release it
// (a recordset whose database has been closed then raises 3420).

#ifndef ZERBAL_AUTOMATION_H_
#define ZERBAL_AUTOMATION_H_

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "zerbal/variant.h"

namespace zerbal {

enum class Invocation {
  kMethod,       // obj.Name(args)
  kPropertyGet,  // x = obj.Name
  kPropertyLet,  // obj.Name = value (the value is the last argument)
};

struct MemberInfo {
  std::string name;
  Invocation kind;
  int required;  // arguments that must be given
  int optional;  // further arguments that may be left out, from the end
  bool returns_object = false;
};

class AutomationObject;

// What a member gives back: its value, or, for a member that returns an
// object, that object (owned by the caller) and an Empty value.
struct Returned {
  Variant value;
  std::unique_ptr<AutomationObject> object;
};

class AutomationObject {
 public:
  virtual ~AutomationObject() = default;

  // Uses member `name`. A property may be read as a method without
  // arguments and a method without required arguments read as a property.
  // Arguments left out from the end take their defaults; elements of `args`
  // that the member takes by reference receive their final values. A member
  // that returns an object gives it in Returned::object.
  virtual Returned Dispatch(std::string_view name, Invocation kind, std::vector<Variant>& args) = 0;

  // Whether member `name`, used as `kind`, returns an object; raises 438
  // when there is no such member.
  virtual bool ReturnsObject(std::string_view name, Invocation kind) const = 0;

  // Dispatch for a member that returns a value; one that returns an object
  // raises 13 before it runs.
  Variant Invoke(std::string_view name, Invocation kind, std::vector<Variant>& args);

  // Dispatch for a member that returns an object; one that returns a value
  // raises 13 before it runs.
  std::unique_ptr<AutomationObject> InvokeObject(std::string_view name, Invocation kind,
                                                 std::vector<Variant>& args);

  // The class name and every member, in interface order.
  virtual std::string_view ClassName() const = 0;
  virtual std::vector<MemberInfo> Members() const = 0;

  Variant Get(std::string_view name);
  void Let(std::string_view name, Variant value);
  Variant Call(std::string_view name, std::vector<Variant>& args);
};

// A new object of the class registered as `progid` ("zerbal.cDeclarante");
// raises 429 for a class that is not registered.
std::unique_ptr<AutomationObject> CreateObject(std::string_view progid);

// Every registered class name.
std::vector<std::string> RegisteredClasses();

}  // namespace zerbal

#endif  // ZERBAL_AUTOMATION_H_
