// What the keyboard is set to, as far as the display tells: X11 does.
#pragma once

#include <QString>

namespace evac::desktop {

struct KeyboardState {
  QString layout;  // "RU"; empty when it is not known
  bool caps_lock = false;
};

KeyboardState keyboard_state();

}  // namespace evac::desktop
