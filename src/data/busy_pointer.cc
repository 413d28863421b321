#include "zerbal/platform.h"

namespace zerbal {
namespace {

class NoPointer final : public BusyPointer {
 public:
  void BusyOn() override {}
  void BusyOff() override {}
};

NoPointer g_no_pointer;
thread_local BusyPointer* t_pointer = nullptr;

}  // namespace

void SetBusyPointer(BusyPointer* pointer) { t_pointer = pointer; }

BusyPointer& CurrentBusyPointer() { return t_pointer ? *t_pointer : g_no_pointer; }

}  // namespace zerbal
