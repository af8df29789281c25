// The group buttons of the alarm panel: the computer's sound into all zones that have a channel, or into
// those of its own channel, and back.
#pragma once

#include "alert/zone_lamps.h"
#include "link/link.h"
#include "model/system_model.h"
#include "platform/machine.h"

namespace evac {

class ZoneGroups {
 public:
  struct Doors {
    ZoneState& zones;
    const SourceState& sources;
    const SettingsState& settings;
    const PaintState& paint;
    AlarmTab& tab;
    ZoneLamps& lamps;
    Link& link;
    Boxes& boxes;
  };
  explicit ZoneGroups(const Doors& doors) : doors_(doors) {}

  // CmdAG: all zones that have a channel get the computer's, or everything is stopped.
  void toggle_all();
  // CmdTG: the same for the zones on the computer's channel.
  void toggle_chosen();

 private:
  bool computer_ready();
  template <class Chosen>
  void toggle_group(bool& on, Button& button, Chosen chosen);

  const Doors doors_;
};

}  // namespace evac
