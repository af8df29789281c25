// Form6: the names of the zones.
#pragma once

#include "console/name_window.h"

namespace evac {

struct Form6 : NameWindow {
  explicit Form6(Windows& windows) : NameWindow(windows, "Form6", "Имена зон", 250) {}
};

}  // namespace evac
