#include "platform/event_loop.h"

#include <algorithm>

#include "platform/controls.h"

namespace evac {
namespace {

using std::chrono::milliseconds;

// Timers of this interval keep phase with the wall clock, so far behind each full second that a tick that
// comes early by the jitter of the machine still falls into its second.
constexpr int kSecondTimer = 1000;
constexpr milliseconds kSecondPhase{10};

// Keeps the number of the innermost event for as long as it runs, however it ends.
class Innermost {
 public:
  Innermost(std::uint64_t& running, std::uint64_t number) : running_(running), outer_(running) {
    running = number;
  }
  ~Innermost() { running_ = outer_; }
  Innermost(const Innermost&) = delete;
  Innermost& operator=(const Innermost&) = delete;

 private:
  std::uint64_t& running_;
  const std::uint64_t outer_;
};

}  // namespace

void EventLoop::post_after(milliseconds delay, std::function<void()> event) {
  const Instant due = host_.now() + delay;
  const auto behind =
      std::upper_bound(posted_.begin(), posted_.end(), due,
                       [](Instant moment, const Posted& other) { return moment < other.due; });
  posted_.insert(behind, {due, ++order_, std::move(event)});
}

void EventLoop::pump() {
  if (!run_due()) host_.idle(next_due());
}

bool EventLoop::run_due() {
  between_events();
  host_.look_at_clock();
  const Instant now = host_.now();
  const std::size_t at = oldest_timer();
  const bool timer_due = at < timers_.size() && timers_[at].due <= now;
  const bool posted_due = !posted_.empty() && posted_.front().due <= now;
  if (!timer_due && !posted_due) return false;
  const bool timer_first =
      timer_due && (!posted_due || timers_[at].due < posted_.front().due ||
                    (timers_[at].due == posted_.front().due && timers_[at].order < posted_.front().order));
  const Innermost innermost(running_, ++begun_);
  if (timer_first) {
    Armed& armed = timers_[at];
    Timer& timer = *armed.timer;
    set_next_tick(armed);
    armed.order = ++order_;
    timer.tick();
  } else {
    const auto run = std::move(posted_.front().run);
    posted_.pop_front();
    run();
  }
  return true;
}

std::optional<Instant> EventLoop::next_due() const {
  std::optional<Instant> due;
  if (!posted_.empty()) due = posted_.front().due;
  for (const Armed& armed : timers_)
    if ((!due || armed.due < *due) && !armed.timer->rests()) due = armed.due;
  return due;
}

void EventLoop::arm(Timer& timer) {
  disarm(timer);
  if (timer.interval() < 1) return;
  const milliseconds interval(timer.interval());
  timers_.push_back({&timer, host_.now() + interval, ++order_, host_.wall() + interval});
}

void EventLoop::disarm(Timer& timer) {
  std::erase_if(timers_, [&](const Armed& armed) { return armed.timer == &timer; });
}

std::size_t EventLoop::oldest_timer() const {
  // They stand in the order in which they were switched on, and of those that are due at one moment the first
  // ticks first: so two timers of one interval keep their order, whatever the phases in which they began.
  std::size_t oldest = 0;
  for (std::size_t i = 1; i < timers_.size(); ++i)
    if (timers_[i].due < timers_[oldest].due) oldest = i;
  return oldest;
}

void EventLoop::set_next_tick(Armed& armed) const {
  const milliseconds interval(armed.timer->interval());
  if (armed.timer->interval() == kSecondTimer) {
    armed.second = next_full_second();
    armed.due = host_.moment_of(armed.second);
    return;
  }
  const auto missed = (host_.now() - armed.due) / interval;
  armed.due += interval * (missed + 1);
}

WallTime EventLoop::next_full_second() const {
  return std::chrono::floor<std::chrono::seconds>(host_.wall()) + milliseconds(kSecondTimer) + kSecondPhase;
}

void EventLoop::keep_phase() {
  const WallTime now = host_.wall(), next = next_full_second();
  for (Armed& armed : timers_) {
    if (armed.timer->interval() != kSecondTimer) continue;
    // One that the clock was set away from waits for the second that is next now.
    if (armed.second > next || now - armed.second > milliseconds(kSecondTimer)) armed.second = next;
    armed.due = host_.moment_of(armed.second);
  }
}

}  // namespace evac
