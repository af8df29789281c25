// The clock, once a second: the change of the date, the times of the forced restart, the clock line of the
// header strip.
#pragma once

#include "link/header_strip.h"
#include "platform/event.h"
#include "platform/event_loop.h"

namespace evac {

class Clock {
 public:
  struct Doors {
    HeaderStrip& strip;
    const EventLoop& loop;
  };
  explicit Clock(const Doors& doors) : doors_(doors) {}

  // Remembers today: what a day needs has been loaded by the start.
  void start();
  // One tick of Timer3: day_changed when the date is another than before, then restart_test, then the line.
  void tick();

  Event<> day_changed;
  Event<> restart_test;

 private:
  const Doors doors_;
  Date today_{};
};

}  // namespace evac
