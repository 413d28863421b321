// The factories of every class that can be created by name; registry.cc
// lists them with their names.

#ifndef ZERBAL_AUTOMATION_CLASSES_H_
#define ZERBAL_AUTOMATION_CLASSES_H_

#include <memory>

#include "zerbal/automation.h"

namespace zerbal::automation {

std::unique_ptr<AutomationObject> NewMiscelaneos();

}  // namespace zerbal::automation

#endif  // ZERBAL_AUTOMATION_CLASSES_H_
