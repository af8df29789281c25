// Form55: which terminals exist, and on which channel each sits, preset by preset.
#pragma once

#include "console/cell_window.h"

namespace evac {

struct Form55 : CellWindow {
  explicit Form55(Windows& windows)
      : CellWindow(windows, "Form55", "Настройка терминалов", kTerminals, "Имена терминалов") {}

  ScrollBar VsUs{place, "VsUs", 1, kPresets, 1};
  Label LblUs{place, "LblUs", "1"};
};

}  // namespace evac
