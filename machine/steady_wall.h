// The wall clock as the console sees it: the system's, but with no second left out. Behind a hold of the
// program or a step forward it catches up at ten times its speed, so that what waits for a second still meets
// it; behind a step back it stands still. Steps of more than a minute are taken at once.
#pragma once

#include <chrono>
#include <functional>

#include "model/time.h"

namespace evac {

class SteadyWall {
 public:
  static constexpr std::chrono::minutes kLargestStep{1};
  static constexpr int kCatchUpSpeed = 10;
  // Looks that are further apart than this were held up: the time between is caught up with.
  static constexpr std::chrono::milliseconds kHold{250};
  // The system's clock may be told by so much more or less than the time that has passed without being set.
  static constexpr std::chrono::milliseconds kJitter{5};

  // The time to be shown now. To be called for each event: the steps that it sees depend on it.
  WallTime look(Instant now, WallTime system);
  // How long after the last look the wall shows that time, if the system's clock goes on evenly.
  std::chrono::milliseconds until(WallTime time) const;

  // The wall goes at another speed from now on, or has been set: what waits for a time of it must wait anew.
  std::function<void()> changed = [] {};
  // A large step was taken: from, to.
  std::function<void(WallTime, WallTime)> stepped = [](WallTime, WallTime) {};

 private:
  bool started_ = false;
  Instant looked_{};
  WallTime shown_{}, system_{};
  bool catching_up_ = false;
};

}  // namespace evac
