// The engine of the weekly timer: once a second it shows the nearest event, and carries it out in its very
// second. A second that no tick saw is not made up for.
#pragma once

#include "timer/timer_actions.h"
#include "timer/timer_panel.h"

namespace evac {

class TimerEngine {
 public:
  struct Doors {
    TimerState& timer;
    TimerPanel& panel;
    TimerActions& actions;
    const EventLoop& loop;
  };
  explicit TimerEngine(const Doors& doors) : doors_(doors) {}

  // CmdTV.
  void toggle();
  // One tick of Timer10.
  void tick();

 private:
  void search(WallTime now);
  void show_event();

  const Doors doors_;
};

}  // namespace evac
