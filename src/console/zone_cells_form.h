// Form33: which zones exist, and on which channel each sits.
#pragma once

#include "console/cell_window.h"

namespace evac {

struct Form33 : CellWindow {
  explicit Form33(Windows& windows) : CellWindow(windows, "Form33", "Настройка зон", kZones, "Имена зон") {
    position = {3000, 2000};
  }
};

}  // namespace evac
