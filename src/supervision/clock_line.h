// The clock line of the header strip, once a second.
#pragma once

#include "link/header_strip.h"
#include "model/system_model.h"
#include "platform/event_loop.h"

namespace evac {

class ClockLine {
 public:
  ClockLine(const CalendarState& calendar, HeaderStrip& strip, EventLoop& loop)
      : calendar_(calendar), strip_(strip), loop_(loop) {}

  // One tick of Timer3.
  void tick();

 private:
  const CalendarState& calendar_;
  HeaderStrip& strip_;
  EventLoop& loop_;
};

}  // namespace evac
