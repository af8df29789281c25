// The wall clock that leaves no second out: holds, steps of every size, and the timers that keep its phase.
#include "machine/steady_wall.h"

#include <gtest/gtest.h>

#include <map>

#include "platform/windows.h"

namespace evac {
namespace {

using namespace std::chrono_literals;
using std::chrono::milliseconds;

// A machine whose clock can be set and whose program can be held.
class Machine : public LoopHost {
 public:
  Machine() {
    wall_.changed = [this] { loop.keep_phase(); };
    wall_.stepped = [this](WallTime, WallTime) { ++large_steps; };
  }
  Instant now() const override { return now_; }
  WallTime wall() const override { return wall_.look(now_, system_); }
  Instant moment_of(WallTime time) const override {
    (void)wall();
    return now_ + wall_.until(time);
  }
  void look_at_clock() override { (void)wall(); }
  void idle(std::optional<Instant> next) override { pass(std::clamp(*next - now_, 1ms, 100ms)); }
  void pass(milliseconds time) {
    now_ += time;
    system_ += time;
  }
  void step(milliseconds by) { system_ += by; }
  WallTime system() const { return system_; }

  EventLoop loop{*this};
  int large_steps = 0;

 private:
  Instant now_{1h};
  WallTime system_ = std::chrono::local_days{std::chrono::year{2026} / 1 / 5} + 8h;
  mutable SteadyWall wall_;
};

class NoWindows : public WindowHost {
 public:
  void form_shown(Form&, bool) override {}
  void form_hidden(Form&) override {}
  void popup_shown(PopupMenu&) override {}
  void popup_hidden(PopupMenu&) override {}
};

class Seconds : public testing::Test {
 protected:
  Seconds() {
    tick_.tick = [this] { ++ticks[second_of_day(machine.wall())]; };
    tick_.set_enabled(true);
    run(3s);
  }
  void run(milliseconds time) {
    for (const Instant end = machine.now() + time; machine.now() < end;) machine.loop.pump();
  }
  int second() { return second_of_day(machine.wall()); }
  // Every second from the first tick to the last was met once.
  void expect_no_gap() {
    for (int s = ticks.begin()->first; s <= ticks.rbegin()->first; ++s)
      EXPECT_EQ(ticks[s], 1) << time_text(s);
  }

  Machine machine;
  std::map<int, int> ticks;

 private:
  NoWindows host_;
  Windows windows_{machine.loop, host_};
  Form form_{windows_, "Form1", ""};
  Timer tick_{form_.place(), "Timer3", 1000};
};

TEST_F(Seconds, AHoldOfAnyLengthAtAnyMomentIsCaughtUpAtTenTimesTheSpeed) {
  for (const milliseconds hold : {300ms, 999ms, 1001ms, 6000ms, 59'000ms})
    for (milliseconds at = 0ms; at < 1s; at += 83ms) {
      run(2s + at);
      machine.pass(hold);
      run(hold / 9 + 200ms);
      EXPECT_EQ(machine.wall(), machine.system()) << hold.count();
    }
  expect_no_gap();
  EXPECT_EQ(machine.large_steps, 0);
}

TEST_F(Seconds, StepsOfUpToAMinuteLeaveNoSecondOutAndRepeatNone) {
  for (const milliseconds step : {6000ms, -4000ms, 57'000ms, -57'500ms, 700ms, -300ms, 30'000ms, 30'000ms}) {
    run(1234ms);
    machine.step(step);
    run(500ms);
    machine.pass(2s);  // held in the midst of it
    run(70s);
  }
  expect_no_gap();
  EXPECT_EQ(machine.large_steps, 0);
}

TEST_F(Seconds, ALargeStepIsTakenAtOnceAndTold) {
  const int before = second();
  machine.step(1h);
  run(2s);
  EXPECT_EQ(second(), before + 3602);
  EXPECT_EQ(machine.large_steps, 1);
  machine.step(-1h);
  run(3s);
  EXPECT_EQ(second(), before + 5);
  EXPECT_EQ(machine.large_steps, 2);
  EXPECT_GE(ticks[before + 4], 1) << "the timers go on in the phase of the clock";
}

}  // namespace
}  // namespace evac
