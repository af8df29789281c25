// The log of two text inputs: what appears in Text1 and Text2 is listed once, the first with its time.
#pragma once

#include "console/power_tab.h"
#include "platform/event_loop.h"

namespace evac {

class TextLog {
 public:
  struct Doors {
    PowerTab& tab;
    const EventLoop& loop;
  };
  explicit TextLog(const Doors& doors) : doors_(doors) {}

  // One tick of Timer2.
  void tick();
  // Command1: empties the lists. What has been added still counts towards the most that each input may add.
  void clear();

 private:
  const Doors doors_;
  int added1_ = 0, added2_ = 0;
};

}  // namespace evac
