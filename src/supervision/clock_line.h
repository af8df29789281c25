// The clock line of the header strip, once a second.
#pragma once

#include "link/header_strip.h"
#include "platform/event_loop.h"

namespace evac {

class ClockLine {
 public:
  struct Doors {
    HeaderStrip& strip;
    EventLoop& loop;
  };
  explicit ClockLine(const Doors& doors) : doors_(doors) {}

  // One tick of Timer3.
  void tick();

 private:
  const Doors doors_;
};

}  // namespace evac
