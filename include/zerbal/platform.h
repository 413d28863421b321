// The parts of the host platform that the library calls, replaceable by a
// client. Each has a default that does nothing visible (or writes to
// standard error), so the library works without a screen.

#ifndef ZERBAL_PLATFORM_H_
#define ZERBAL_PLATFORM_H_

#include <string>

namespace zerbal {

// The application's mouse pointer: busy-on shows the hourglass (pointer
// value 11), busy-off the default pointer (value 0). The connection calls it
// around each engine operation.
class BusyPointer {
 public:
  virtual ~BusyPointer() = default;
  virtual void BusyOn() = 0;
  virtual void BusyOff() = 0;
};

// Installs `pointer` for the calling thread (nullptr restores the default,
// which does nothing). The library does not own it; it must outlive its use.
void SetBusyPointer(BusyPointer* pointer);
BusyPointer& CurrentBusyPointer();

// The message box with the critical-error icon and an OK button, in which
// the upgrade (cTraspaso) shows its two messages. The default writes the
// message and a line end to standard error.
class CriticalMessageBox {
 public:
  virtual ~CriticalMessageBox() = default;
  virtual void Show(const std::string& message) = 0;
};

// Installs `box` for the calling thread (nullptr restores the default). The
// library does not own it; it must outlive its use.
void SetCriticalMessageBox(CriticalMessageBox* box);
CriticalMessageBox& CurrentCriticalMessageBox();

}  // namespace zerbal

#endif  // ZERBAL_PLATFORM_H_
