// How long the window waits for disks and sound files: all waits of one event share it, so that however many
// of them get no answer, the detection of a fire is held for a moment only.
#pragma once

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <mutex>

namespace evac {

// Of the window's thread.
class Patience {
 public:
  using Clock = std::chrono::steady_clock;
  static constexpr std::chrono::milliseconds kAnEvent{80};
  // Also when none is left: a disk that is well answers in less, whatever another one has used up.
  static constexpr std::chrono::milliseconds kAnyway{10};

  // The start is over: until then each wait is one of its own, and what must be known is waited for as long
  // as it takes.
  void end_start() { starting_ = false; }
  bool starting() const { return starting_; }
  // Another event begins.
  void renew() { left_ = kAnEvent; }

  // Waits for that, at the most for what is left, and never for longer than `most`. Whether it holds.
  template <class Holds>
  bool wait(std::condition_variable& changed, std::unique_lock<std::mutex>& lock, Holds holds,
            Clock::duration most = kAnEvent) {
    if (starting_) return changed.wait_for(lock, most, holds);
    const auto begun = Clock::now();
    const bool held =
        changed.wait_for(lock, std::min(most, std::max<Clock::duration>(left_, kAnyway)), holds);
    left_ -= std::min(left_, Clock::now() - begun);
    return held;
  }

 private:
  bool starting_ = true;
  Clock::duration left_ = kAnEvent;
};

}  // namespace evac
