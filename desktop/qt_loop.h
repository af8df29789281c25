// The console's clock and its waiting, on Qt: the steady clock for what is due, the local calendar for the
// wall. While it waits the toolkit works; nothing of the console runs meanwhile.
#pragma once

#include <QTimer>
#include <functional>

#include "platform/event_loop.h"

namespace evac::desktop {

class QtLoop : public LoopHost {
 public:
  QtLoop();
  Instant now() const override;
  WallTime wall() const override;
  void idle(std::optional<Instant> next_due) override;

  // Called before each waiting: shows what has changed.
  std::function<void()> before_wait = [] {};

 private:
  QTimer wake_;
};

}  // namespace evac::desktop
