#include "machine/steady_wall.h"

#include <algorithm>
#include <utility>

namespace evac {

using std::chrono::milliseconds;

WallTime SteadyWall::look(Instant now, WallTime system) {
  const milliseconds gap = now - looked_;
  const milliseconds behind = system - shown_;
  const bool set = std::chrono::abs((system - system_) - gap) > kJitter;
  const WallTime before = shown_;
  looked_ = now;
  system_ = system;
  if (!started_ || behind > kLargestStep || behind < -kLargestStep) {
    shown_ = system;
    catching_up_ = false;
    if (std::exchange(started_, true)) {
      stepped(before, system);
      changed();
    }
    return shown_;
  }
  const bool begins = !catching_up_ && behind > kHold;
  if (begins)
    catching_up_ = true;  // nothing of it is shown yet: the second that is due meanwhile comes first
  else if (catching_up_) {
    if (gap <= kHold) shown_ += std::clamp(behind, milliseconds{}, kCatchUpSpeed * gap);
    catching_up_ = shown_ < system_;
  } else
    shown_ = std::max(shown_, system_);
  const bool held_once_more = catching_up_ && gap > kHold;
  if (set || begins || held_once_more) changed();
  return shown_;
}

milliseconds SteadyWall::until(WallTime time) const {
  const milliseconds way = std::max(time - shown_, milliseconds{});
  const milliseconds behind = system_ - shown_;
  if (!catching_up_) return way - std::min(behind, milliseconds{});
  // Caught up where the wall's way is as long as the lag and the time that it took.
  const milliseconds fast = behind * kCatchUpSpeed / (kCatchUpSpeed - 1);
  return way <= fast ? (way + milliseconds(kCatchUpSpeed - 1)) / kCatchUpSpeed : way - behind;
}

}  // namespace evac
