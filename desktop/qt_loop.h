// The console's clock and its waiting, on Qt: the steady clock for what is due, the local calendar, with no
// second left out, for the wall. While it waits the toolkit works; nothing of the console runs meanwhile.
#pragma once

#include <QTimer>
#include <functional>

#include "machine/steady_wall.h"
#include "platform/event_loop.h"

namespace evac::desktop {

class QtLoop : public LoopHost {
 public:
  QtLoop();
  Instant now() const override;
  WallTime wall() const override;
  Instant moment_of(WallTime time) const override;
  void look_at_clock() override { (void)wall(); }
  void idle(std::optional<Instant> next_due) override;

  // Called before each waiting: shows what has changed.
  std::function<void()> before_wait = [] {};
  SteadyWall& steady_wall() { return wall_; }

 private:
  mutable SteadyWall wall_;
  QTimer wake_;
};

}  // namespace evac::desktop
