// Form4: the names of the terminals.
#pragma once

#include "console/name_window.h"

namespace evac {

struct Form4 : NameWindow {
  explicit Form4(Windows& windows) : NameWindow(windows, "Form4", "Имена терминалов", 255) {}
};

}  // namespace evac
