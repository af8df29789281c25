// The look of the buttons that switch a part of the console on and off.
#pragma once

#include "platform/controls.h"

namespace evac {

inline void show_switch(Button& button, bool on) {
  button.set_caption(on ? "ВКЛ" : "ВЫКЛ");
  button.set_picture(on ? picture::kSwitchOn : picture::kSwitchOff);
}

}  // namespace evac
