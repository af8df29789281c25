// What the wiring of all wings shares.
#pragma once

#include <string>

#include "platform/controls.h"

namespace evac {

// The bar writes its value into the label.
inline void show_value(ScrollBar& bar, Label& label) {
  bar.change = [&bar, &label] { label.set_caption(std::to_string(bar.value())); };
}

}  // namespace evac
