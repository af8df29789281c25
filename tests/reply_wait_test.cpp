// Polls and a scan on the same line: when answers leave, in which order frames stand on it, what a scan takes
// for its reply.
#include "link/reply_wait.h"

#include <gtest/gtest.h>

#include "drill/virtual_machine.h"
#include "link/dispatcher.h"
#include "model/text.h"
#include "tests/scratch.h"

namespace evac {
namespace {

using namespace std::chrono_literals;

constexpr std::array<std::uint8_t, 9> kPoll = {0xAA, 0xAA, 0x10, 0, 0, 3, 0, 0, 0x13};
constexpr std::array<std::uint8_t, 9> kReply = {0xAA, 0xAA, 0x0A, 5, 20, 7, 9, 0, 0x33};

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
    machine.trace = [this](const std::string& line) { note(line); };
    machine.run_for(5ms);
    start = machine.now();
  }

  void note(const std::string& line) {
    const char here = 0;
    const auto stack = reinterpret_cast<std::uintptr_t>(&here);
    highest = std::max(highest, stack);
    lowest = std::min(lowest, stack);
    const std::string what = line.substr(0, 12) == "tx AA AA 20 " ? " answer" : " query";
    if (!log.empty()) log += ", ";
    log += join(static_cast<int>((machine.now() - start) / 1ms), what);
  }
  // These bytes come, so long from now.
  void comes(std::chrono::milliseconds when, std::initializer_list<std::array<std::uint8_t, 9>> frames) {
    std::vector<std::uint8_t> bytes;
    for (const auto& frame : frames) bytes.insert(bytes.end(), frame.begin(), frame.end());
    machine.loop().post_after(when, [this, bytes] { machine.receive(bytes); });
  }
  int answers() {
    const int count = static_cast<int>(machine.sent().size());
    machine.sent().clear();
    return count;
  }
  // As the scan of the terminals asks one.
  ReplyWait::Scan ask(int terminal) {
    link.SendScanQuery(terminal);
    wait.begin_scan();
    machine.allow(1s);
    while (wait.scan() == ReplyWait::Scan::kWaiting) machine.loop().pump();
    const auto end = wait.scan();
    wait.stop();
    return end;
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
  Instant start{};
  std::string log;
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

TEST_F(Waits, APollInTheScanIsAnsweredBeforeTheNextQueryGoesOut) {
  comes(50ms, {kPoll});
  EXPECT_EQ(ask(1), ReplyWait::Scan::kTimedOut);
  comes(50ms, {kReply});
  EXPECT_EQ(ask(2), ReplyWait::Scan::kData);
  EXPECT_EQ(log, "0 query, 75 answer, 75 query");
}

TEST_F(Waits, APollAndTheReplyInOneBurstAreBothTaken) {
  comes(50ms, {kPoll, kReply});
  EXPECT_EQ(ask(1), ReplyWait::Scan::kData);
  EXPECT_EQ(state.r_frame, kReply);
  comes(50ms, {kReply, kPoll});
  EXPECT_EQ(ask(2), ReplyWait::Scan::kData);
  EXPECT_EQ(state.r_frame, kReply) << "the poll behind it has not taken its place";
  machine.run_for(100ms);
  EXPECT_EQ(log, "0 query, 50 answer, 50 query, 135 answer");
}

TEST_F(Waits, AStopOfTheScanHoldsNoAnswerBack) {
  comes(50ms, {kPoll});
  machine.loop().post_after(60ms, [this] { wait.stop(); });
  EXPECT_EQ(ask(1), ReplyWait::Scan::kStopped);
  machine.run_for(1s);
  EXPECT_EQ(log, "0 query, 60 answer");
}

TEST_F(Waits, AScanThatBeginsHoldsNoAnswerBackAndLosesNoReply) {
  machine.receive(kPoll);
  machine.run_for(20ms);
  comes(100ms, {kReply});
  EXPECT_EQ(ask(1), ReplyWait::Scan::kData);
  EXPECT_EQ(log, "20 query, 35 answer");
}

}  // namespace
}  // namespace evac
