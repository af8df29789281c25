// Polls that come in crowds: when their answers leave, and what that costs of the stack.
#include "link/reply_wait.h"

#include <gtest/gtest.h>

#include "drill/virtual_machine.h"
#include "link/dispatcher.h"
#include "tests/scratch.h"

namespace evac {
namespace {

using namespace std::chrono_literals;

constexpr std::array<std::uint8_t, 9> kPoll = {0xAA, 0xAA, 0x10, 0, 0, 3, 0, 0, 0x13};

class Waits : public testing::Test {
 protected:
  Waits() {
    machine.machine().port.open();
    machine.machine().port.receive = [this] { link.receive(); };
    link.frame_received = [this] { dispatcher.dispatch(); };
    wait.answer = [this] { dispatcher.answer_poll(); };
    strip.Timer1.tick = [this] { wait.tick(); };
    strip.Timer1.set_enabled(true);
    state.poll_answer_state = 2;  // calendar and clock are set
    machine.trace = [this](const std::string&) {
      const char here = 0;
      const auto stack = reinterpret_cast<std::uintptr_t>(&here);
      highest = std::max(highest, stack);
      lowest = std::min(lowest, stack);
    };
    machine.run_for(5ms);
  }

  int answers() {
    const int count = static_cast<int>(machine.sent().size());
    machine.sent().clear();
    return count;
  }
  Scratch scratch;
  drill::VirtualMachine machine{scratch.path};
  Windows windows{machine.loop(), machine};
  Form form{windows, "Form1", ""};
  HeaderStrip strip{form};
  LinkState state;
  Link link{{.state = state, .port = machine.machine().port}};
  ReplyWait wait;
  Dispatcher dispatcher{{.state = state, .wait = wait, .link = link, .loop = machine.loop(), .strip = strip}};
  std::uintptr_t highest = 0, lowest = UINTPTR_MAX;
};

TEST_F(Waits, ABurstOfPollsIsAnsweredWholeOnAFlatStack) {
  constexpr int kPolls = 100'000;
  std::vector<std::uint8_t> burst;
  for (int i = 0; i < kPolls; ++i) burst.insert(burst.end(), kPoll.begin(), kPoll.end());
  machine.receive(burst);
  machine.run_for(30ms);
  EXPECT_EQ(answers(), 0) << "the line is turned round in two ticks";
  machine.run_for(10ms);
  EXPECT_EQ(answers(), kPolls);
  EXPECT_LT(highest - lowest, 100u);
  machine.run_for(1s);
  EXPECT_EQ(answers(), 0);
}

TEST_F(Waits, UnderPollsThatNeverPauseAnAnswerLeavesAtTheTenthTick) {
  int asked = 0, answered = 0, most = 0;
  for (; asked < 1004; ++asked) {
    most = std::max(most, asked - answered);
    machine.receive(kPoll);
    machine.run_for(20ms);
    answered += answers();
  }
  EXPECT_EQ(most, 9);
  machine.run_for(20ms);
  EXPECT_EQ(answered + answers(), asked);
}

}  // namespace
}  // namespace evac
