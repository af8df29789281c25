// The loop's promises: order, phase, late ticks, timers that rest, boxes that hold everything.
#include <gtest/gtest.h>

#include "drill/virtual_machine.h"
#include "model/text.h"
#include "tests/scratch.h"

namespace evac {
namespace {

using namespace std::chrono_literals;

class Loop : public testing::Test {
 protected:
  Loop() : machine(scratch.path), windows(machine.loop(), machine), form(windows, "Form1", "") {
    windows.show(form);
  }

  // Milliseconds into the wall clock's second.
  long into_second() { return machine.wall().time_since_epoch().count() % 1000; }

  Scratch scratch;
  drill::VirtualMachine machine;
  Windows windows;
  Form form;
};

TEST_F(Loop, FirstTickComesOneIntervalAfterEnablingAndEnablingAgainKeepsThePhase) {
  Timer timer(form.place(), "T", 100);
  std::vector<long> ticks;
  timer.tick = [&] { ticks.push_back(machine.now().time_since_epoch().count()); };
  machine.run_for(30ms);
  timer.set_enabled(true);
  machine.run_for(50ms);
  timer.set_enabled(true);
  machine.run_for(160ms);
  timer.set_enabled(false);
  machine.run_for(300ms);
  EXPECT_EQ(ticks, (std::vector<long>{130, 230}));
}

TEST_F(Loop, SecondTimerComesIntoPhaseWithTheWallClockAndMissesNoSecond) {
  Timer timer(form.place(), "T", 1000);
  std::vector<int> seconds;
  long phase = 0;
  timer.tick = [&] {
    seconds.push_back(second_of_day(machine.wall()) - 8 * 3600);
    phase = into_second();
  };
  machine.run_for(450ms);
  timer.set_enabled(true);
  machine.run_for(4s);
  EXPECT_EQ(seconds, (std::vector<int>{1, 2, 3, 4}));
  EXPECT_GT(phase, 0);
  EXPECT_LT(phase, 100);
  // A jump of the clock leaves the time to the next tick as it was; from there on every new second is met.
  seconds.clear();
  machine.run_for(300ms);
  machine.set_wall(std::chrono::local_days(std::chrono::January / 5 / 2026) + 8h + 20s);
  machine.run_for(3s);
  EXPECT_EQ(seconds, (std::vector<int>{20, 21, 22}));
  // Set back by a hair just before a tick: the second begins anew, and is met.
  seconds.clear();
  machine.set_wall(machine.wall() - 40ms);
  machine.run_for(2s);
  EXPECT_EQ(seconds, (std::vector<int>{22, 23, 24}));
}

TEST_F(Loop, SecondTimersKeepTheOrderInWhichTheyWereSwitchedOn) {
  Timer late(form.place(), "A", 1000), early(form.place(), "B", 1000);
  std::string order;
  late.tick = [&] { order += 'l'; };
  early.tick = [&] { order += 'e'; };
  early.set_enabled(true);
  machine.run_for(2s);
  late.set_enabled(true);  // its first tick comes ten milliseconds before the other's
  machine.run_for(3500ms);
  EXPECT_EQ(order, "eeleelel");
}

TEST_F(Loop, ALateTickIsTakenOnceAndBoxesHoldEverything) {
  Timer fast(form.place(), "Fast", 20), slow(form.place(), "Slow", 1000);
  int fast_ticks = 0, slow_ticks = 0, posted = 0;
  fast.tick = [&] { ++fast_ticks; };
  slow.tick = [&] { ++slow_ticks; };
  fast.set_enabled(true);
  slow.set_enabled(true);
  machine.queue_answer({drill::Answer::Kind::kOk, {}, 5500ms});
  machine.allow(5500ms);
  machine.loop().post([&] { ++posted; });
  machine.message("Ошибка", "");
  EXPECT_EQ(fast_ticks + slow_ticks + posted, 0);
  machine.run_for(0ms);
  EXPECT_EQ(fast_ticks, 1);
  EXPECT_EQ(slow_ticks, 1);
  EXPECT_EQ(posted, 1);
  machine.run_for(60ms);
  EXPECT_EQ(fast_ticks, 4);
}

TEST_F(Loop, NobodyIsWokenForATimerThatRestsAndItKeepsItsPhase) {
  Timer counter(form.place(), "C", 20), look(form.place(), "L", 100);
  std::string log;
  bool rests = true;
  const auto note = [&](std::string_view what) {
    log += join(what, machine.now().time_since_epoch() / 1ms, " ");
  };
  counter.tick = [&] { note(rests ? "r" : "c"); };
  counter.rests = [&] { return rests; };
  look.tick = [&] { note("l"); };
  counter.set_enabled(true);
  look.set_enabled(true);
  machine.run_for(170ms);
  machine.loop().post([&] {
    note("e");
    rests = false;
  });
  machine.run_for(30ms);
  rests = true;
  machine.run_for(50ms);
  rests = false;  // by a hand, that is no event
  machine.run_for(20ms);
  EXPECT_EQ(log, "r100 l100 r170 e170 c180 c200 l200 r250 c260 ");
}

TEST_F(Loop, EventsRunInTheOrderOfTheirMoments) {
  std::string order;
  machine.loop().post_after(10ms, [&] { order += 'b'; });
  machine.loop().post_after(20ms, [&] { order += 'c'; });
  machine.loop().post([&] { order += 'a'; });
  machine.run_for(30ms);
  EXPECT_EQ(order, "abc");
}

}  // namespace
}  // namespace evac
