// The console's one queue of events: posted ones and the ticks of timers. Hosts tell it the time and wake it.
#pragma once

#include <algorithm>
#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <vector>

#include "model/time.h"
#include "platform/event.h"

namespace evac {

class Timer;

// What the loop needs of the host that runs it.
class LoopHost {
 public:
  virtual ~LoopHost() = default;
  virtual Instant now() const = 0;
  virtual WallTime wall() const = 0;
  // When the wall clock will show that time, as far as is known now; the present when it is past.
  virtual Instant moment_of(WallTime time) const {
    return now() + std::max(time - wall(), std::chrono::milliseconds{});
  }
  // Called before each event and each wait: where a host's wall clock takes note of holds and steps.
  virtual void look_at_clock() {}
  // Returns when `next_due` is reached, when something was posted, or earlier for a reason of the host's own
  // (a user's hand on a control). Never runs an event of the loop itself.
  virtual void idle(std::optional<Instant> next_due) = 0;
};

class EventLoop {
 public:
  explicit EventLoop(LoopHost& host) : host_(host) {}
  EventLoop(const EventLoop&) = delete;
  EventLoop& operator=(const EventLoop&) = delete;

  Instant now() const { return host_.now(); }
  WallTime wall() const { return host_.wall(); }

  // The event runs after all that are due before it, once.
  void post(std::function<void()> event) { post_after({}, std::move(event)); }
  void post_after(std::chrono::milliseconds delay, std::function<void()> event);
  // One step: runs the oldest event that is due, or lets the host wait for the next one. A handler that has
  // to let the others in calls this until what it waits for has come.
  void pump();
  // Runs the oldest event that is due now; false when none is.
  bool run_due();
  // Raised before each step: work that waits for something without holding anybody looks whether it has come.
  Event<> between_events;
  // The number of the innermost event that is being run; 0 when none is.
  std::uint64_t running() const { return running_; }
  // The moment of the next event that is worth waking for, past or future; none when nothing is posted, and
  // armed only what rests.
  std::optional<Instant> next_due() const;
  // For a host whose wall clock changes its speed or is set: timers in phase with it find their second anew.
  void keep_phase();
  // Forgets the posted events.
  void clear() { posted_.clear(); }

  // Used by Timer alone: its first tick comes one interval from now; a late tick is taken once.
  void arm(Timer& timer);
  void disarm(Timer& timer);

 private:
  struct Posted {
    Instant due;
    std::uint64_t order;
    std::function<void()> run;
  };
  struct Armed {
    Timer* timer;
    Instant due;
    std::uint64_t order;
    WallTime second{};  // the wall clock at `due`, for timers in phase with it
  };
  std::size_t oldest_timer() const;
  void set_next_tick(Armed& armed) const;
  WallTime next_full_second() const;

  LoopHost& host_;
  std::deque<Posted> posted_;  // the next one first
  std::vector<Armed> timers_;  // in the order in which they were switched on
  std::uint64_t order_ = 0;
  std::uint64_t running_ = 0, begun_ = 0;
};

}  // namespace evac
