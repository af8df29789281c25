// The row of zone lamps on the alarm tab.
#pragma once

#include "alert/alarm_tab.h"
#include "link/header_strip.h"

namespace evac {

class ZoneLamps {
 public:
  ZoneLamps(AlarmTab& tab, const PictureStores& stores) : tab_(tab), stores_(stores) {}

  // A fault for a zone that has no lamp.
  void alerted(int zone) { tab_.PctA[zone].set_picture(stores_.PctD3); }
  void fire(int zone) { tab_.PctA[zone].set_picture(stores_.PctD4); }
  void all_alerted() { all(stores_.PctD3); }
  void all_idle() { all(stores_.PctD2); }

 private:
  void all(const Picture& store) {
    for (auto& lamp : tab_.PctA) lamp.set_picture(store);
  }

  AlarmTab& tab_;
  const PictureStores& stores_;
};

}  // namespace evac
