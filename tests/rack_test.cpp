// The virtual rack in memory: what it keeps of the frames it hears, what it sends, and how it keeps the
// line's pace.
#include "rack/rack.h"

#include <gtest/gtest.h>

namespace evac::rack {
namespace {

using namespace std::chrono_literals;

class RackTest : public ::testing::Test {
 protected:
  RackTest() {
    rack.passed = [this](const Passed& passed) { log.push_back(passed); };
  }
  void hear(std::uint8_t command, const std::array<std::uint8_t, 5>& data) {
    rack.receive(make_frame(command, data));
  }
  std::vector<std::string> words(bool from_console) const {
    std::vector<std::string> lines;
    for (const auto& passed : log)
      if (passed.from_console == from_console) lines.push_back(passed.words());
    return lines;
  }
  Frame last_sent() const {
    Frame frame{};
    if (out.size() >= frame.size()) std::copy(out.end() - 9, out.end(), frame.begin());
    return frame;
  }

  std::vector<std::uint8_t> out;
  std::vector<Passed> log;
  Rack rack{
      [this](std::span<const std::uint8_t> bytes) { out.insert(out.end(), bytes.begin(), bytes.end()); }};
};

TEST_F(RackTest, KeepsWhatZonesAndTerminalsAreDoingUntilAllIsStopped) {
  hear(0x04, {2, 20, 0xFD, 7, 0});
  hear(0x04, {2, 20, 0xFD, 7, 0});
  hear(0x04, {5, 32, 0xFC, 255, 0});
  EXPECT_EQ(rack.network().zone(7).channel, 2);
  EXPECT_EQ(rack.network().zone(7).times_set, 2);
  EXPECT_EQ(rack.network().terminal(255).volume, 32);
  EXPECT_EQ(rack.network().zones_on(), 1);
  hear(0x04, {0, 10, 0xFD, 8, 0});  // channel 0 carries nothing
  EXPECT_EQ(rack.network().zones_on(), 1);

  hear(0x0C, {0x01, 0x00, 0xD2, 0x00, 0xAA});
  hear(0x20, {0x01, 0x02, 0xD2, 0x00, 0xAA});
  EXPECT_FALSE(rack.network().alert()) << "two of three parts";
  hear(0x09, {0x00, 0x0F, 0xD2, 0x00, 0xAA});
  EXPECT_TRUE(rack.network().alert());

  hear(0x09, {0x00, 0xFF, 0, 0, 0});
  EXPECT_EQ(rack.network().zones_on(), 0);
  EXPECT_FALSE(rack.network().terminal(255).on);
  EXPECT_FALSE(rack.network().alert());
  EXPECT_EQ(words(true).front(), "Зона 7: канал 2, громкость 20");
}

TEST_F(RackTest, KeepsPowerMatrixAndSources) {
  hear(0x07, {2, 0x81, 0xEE, 0, 0});
  EXPECT_TRUE(rack.network().outlet(3, 1));
  EXPECT_TRUE(rack.network().outlet(3, 8));
  EXPECT_FALSE(rack.network().outlet(3, 2));
  hear(0x05, {0xEE, 0x35, 0xF0, 0x11, 0x70});
  EXPECT_EQ(rack.network().matrix_input(1), 5);
  EXPECT_EQ(rack.network().matrix_input(2), 3);
  EXPECT_EQ(rack.network().matrix_input(4), 15);
  EXPECT_EQ(rack.network().matrix_input(8), 7);
  hear(0x06, {0x11, 0x02, 0x04, 0x10, 0});
  EXPECT_TRUE(rack.network().cd().playing);
  EXPECT_EQ(rack.network().cd().value, 10) << "tracks travel as decimal digits";
  hear(0x01, {0x00, 0, 0, 0, 0});
  hear(0x09, {0x00, 0x00, 0, 0, 0});
  EXPECT_TRUE(rack.network().alarm10() && rack.network().alarm9());
}

TEST_F(RackTest, PollsOnItsPeriodAndCountsTheAnswers) {
  rack.set_poll_period(500ms);
  rack.advance(499ms);
  EXPECT_TRUE(out.empty());
  rack.set_status(true, false);
  rack.advance(2s);
  EXPECT_EQ(rack.polls_sent(), 4);
  EXPECT_EQ(last_sent(), make_frame(0x10, {0, 0, 1, 0, 0}));
  EXPECT_EQ(words(false).back(), "Опрос: связь есть, программа приостановлена");
  hear(0x20, {0x11, 0, 0, 0, 0});
  EXPECT_EQ(rack.polls_answered(), 1);
  rack.set_poll_period(0ms);
  rack.advance(10s);
  EXPECT_EQ(rack.polls_sent(), 4);

  rack.set_poll_period(100ms);
  rack.report_alarm(7);
  rack.advance(10200ms);
  EXPECT_EQ(last_sent(), make_frame(0x70, {0, 15, 6, 0, 0})) << "no poll may hide the report at once";
}

TEST_F(RackTest, AnswersTheScanAsToldTo) {
  rack.set_answer_delay(100ms);
  rack.set_silent(1, true);
  rack.set_absent(2, true);
  rack.set_answer(3, Rack::Answer{4, 5, 121, 0});
  hear(0x04, {2, 20, 0xFC, 130, 0});
  hear(0x0A, {3, 1, 0, 0, 0});
  rack.advance(1s);
  EXPECT_TRUE(out.empty());
  hear(0x0A, {3, 2, 0, 0, 0});
  rack.advance(1099ms);
  EXPECT_TRUE(out.empty());
  rack.advance(1100ms);
  EXPECT_EQ(last_sent(), make_frame(0x0A, {0xFF, 0, 0, 0, 0}));
  hear(0x0A, {3, 3, 0, 0, 0});
  rack.advance(1200ms);
  EXPECT_EQ(last_sent(), make_frame(0x0A, {4, 5, 121, 0, 0}));
  hear(0x0A, {3, 130, 1, 0, 0});  // the high byte is rounded up
  rack.advance(1300ms);
  EXPECT_EQ(last_sent(), make_frame(0x0A, {2, 20, 10, 130, 0}));
}

TEST_F(RackTest, TakesTheTimeOfTheLineWhenPaced) {
  rack.set_paced(true);
  for (int zone = 1; zone <= 120; ++zone)
    for (int twice = 0; twice < 2; ++twice) hear(0x04, {1, 32, 0xFD, static_cast<std::uint8_t>(zone), 0});
  EXPECT_EQ(rack.network().zones_on(), 0);
  rack.advance(20ms);
  EXPECT_TRUE(log.empty()) << "nine characters take 20.6 ms";
  rack.advance(21ms);
  EXPECT_EQ(log.size(), 1u);
  rack.advance(4949ms);
  EXPECT_EQ(log.size(), 239u);
  rack.advance(4951ms);
  EXPECT_EQ(rack.network().zones_on(), 120);
}

TEST_F(RackTest, HasTheContactsOfBothCards) {
  rack.set_contact(1, true);
  rack.set_contact(32, true);
  rack.set_contact(97, true);
  EXPECT_EQ(rack.contact_word(0, 0), 0x80000001u);
  EXPECT_EQ(rack.contact_word(0, 1), 0u);
  EXPECT_EQ(rack.contact_word(1, 1), 1u);
}

}  // namespace
}  // namespace evac::rack
