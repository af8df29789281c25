// The operations that take the system back from an alert.
#pragma once

#include "alert/zone_lamps.h"
#include "journal/journal.h"
#include "link/link.h"
#include "model/system_model.h"
#include "platform/machine.h"

namespace evac {

class AlertEnd {
 public:
  struct Doors {
    AlertState& alert;
    const SettingsState& settings;
    AlarmTab& tab;
    ZoneLamps& lamps;
    Media& MP1;
    Media& MP2;
    Link& link;
    Journal& journal;
  };
  explicit AlertEnd(const Doors& doors) : doors_(doors) {}

  // Ends every alert: stops all zones, the message and its timers, forgets the inputs that were answered.
  // The alarm mark, a manual message, the simulation of inputs and the stop of detection stay as they are,
  // and no preset is recalled.
  void AlertReset();
  // Takes all zones out of the alarm that the operator put them into: as the reset, but it stops the manual
  // message too, and the banks and the inputs that were answered stay as they are.
  void release_all_zones();

 private:
  void silence();
  void to_rest();

  const Doors doors_;
};

}  // namespace evac
