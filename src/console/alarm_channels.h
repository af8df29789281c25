// The power of the alarm channels 9 and 10, switched together or channel 10 alone; each way asks first.
#pragma once

#include "console/power_tab.h"
#include "link/link.h"
#include "platform/machine.h"

namespace evac {

class AlarmChannels {
 public:
  struct Doors {
    PowerState& power;
    PowerTab& tab;
    const PaintState& paint;
    Link& link;
    Boxes& boxes;
  };
  explicit AlarmChannels(const Doors& doors) : doors_(doors) {}

  // CmdTW9: both. It paints CmdTW10 too but leaves its state, so that CmdTW10 may then ask to switch off what
  // looks off.
  void toggle_both();
  // CmdTW10.
  void toggle_10();

 private:
  bool agreed(bool on, std::string_view channels);
  void paint(Button& button, bool on);

  const Doors doors_;
};

}  // namespace evac
