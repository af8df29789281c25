// The row of zone lamps on the alarm tab.
#pragma once

#include "alert/alarm_tab.h"

namespace evac {

class ZoneLamps {
 public:
  explicit ZoneLamps(AlarmTab& tab) : tab_(tab) {}

  // A fault for a zone that has no lamp.
  void alerted(int zone) { tab_.PctA[zone].set_picture(picture::kYes); }
  void fire(int zone) { tab_.PctA[zone].set_picture(picture::kPause); }
  void all_alerted() { all(picture::kYes); }
  void all_idle() { all(picture::kNo); }

 private:
  void all(std::string_view picture) {
    for (auto& lamp : tab_.PctA) lamp.set_picture(picture);
  }

  AlarmTab& tab_;
};

}  // namespace evac
