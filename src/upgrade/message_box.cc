#include <iostream>

#include "zerbal/platform.h"

namespace zerbal {
namespace {

class StandardError final : public CriticalMessageBox {
 public:
  void Show(const std::string& message) override { std::cerr << message << std::endl; }
};

StandardError g_standard_error;
thread_local CriticalMessageBox* t_box = nullptr;

}  // namespace

void SetCriticalMessageBox(CriticalMessageBox* box) { t_box = box; }

CriticalMessageBox& CurrentCriticalMessageBox() { return t_box ? *t_box : g_standard_error; }

}  // namespace zerbal
