// The console's clock and its waiting, on Qt: the steady clock for what is due, the local calendar, with no
// second left out, for the wall. While it waits the toolkit works; nothing of the console runs meanwhile.
#pragma once

#include <QEventLoop>
#include <QTimer>
#include <functional>

#include "desktop/toolkit_wait.h"
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
  // Called instead of a step of the toolkit, that would be the last.
  std::function<void()> display_lost = [] {};
  SteadyWall& steady_wall() { return wall_; }

  // What was drawn or asked of the display beside the toolkit's own events is passed on at least this often.
  static constexpr std::chrono::milliseconds kToolkitStep{200};

 private:
  WallTime system_wall() const;
  void step_toolkit(QEventLoop::ProcessEventsFlags how);

  mutable SteadyWall wall_;
  // The local time's distance from the universal one changes at full minutes alone.
  mutable std::chrono::sys_time<std::chrono::minutes> minute_{};
  mutable std::chrono::seconds offset_{};
  const bool waits_itself_ = ToolkitWait::is_possible();
  ToolkitWait toolkit_;
  std::chrono::steady_clock::time_point stepped_{};
  QTimer wake_;  // where the toolkit does the waiting
};

}  // namespace evac::desktop
