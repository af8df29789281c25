// The outbox of the line: its pace, what survives a loss, what passes and what is dropped.
#include "machine/outbox.h"

#include <gtest/gtest.h>

#include "link/link.h"
#include "machine/faulty_devices.h"
#include "rack/network.h"

namespace evac {
namespace {

using namespace std::chrono_literals;
using std::chrono::milliseconds;

// The console's own frames into an outbox, and a line that carries them at 4800 baud.
class OnTheLine : public ::testing::Test, protected LineDevice {
 protected:
  OnTheLine() { outbox.set_character(1'000'000'000ns * 11 / 4800); }

  void zone(int number, int channel) {
    rack::Frame frame = rack::make_frame(
        0x04, {static_cast<std::uint8_t>(channel), 0x20, 0xFD, static_cast<std::uint8_t>(number), 0});
    for (int of_pair = 0; of_pair < 2; ++of_pair) outbox.put(frame, now);
  }
  void put(std::uint8_t command, std::array<std::uint8_t, 5> data) {
    outbox.put(rack::make_frame(command, data), now);
  }
  void stop() { put(0x09, {0, 0xFF, 0, 0, 0}); }
  void poll_answer() { put(0x20, {0x11, 0, 0, 0, 0}); }

  // The device takes up to `bytes` bytes at each of its turns, one a millisecond.
  void carry(milliseconds time, std::size_t bytes = 1000) {
    for (const auto end = now + time; now < end; now += 1ms) {
      room = bytes;
      outbox.hand_over(line, now);
    }
  }
  std::optional<std::size_t> take(std::span<const std::uint8_t> bytes) override {
    const std::size_t count = std::min(room, bytes.size());
    room -= count;
    rack::Frame frame;
    for (const std::uint8_t byte : bytes.first(count))
      if (reader.take(byte, frame)) came(frame);
    return count;
  }

  FaultyLine line{*this};
  std::size_t room = 0;
  std::function<void(const rack::Frame&)> came = [this](const rack::Frame& frame) {
    heard.push_back(rack::words(rack::order_of(frame)));
    network.obey(rack::order_of(frame), {});
  };
  Outbox outbox;
  Outbox::Moment now{1h};
  rack::FrameReader reader;
  rack::Network network;
  std::vector<std::string> heard;
};

TEST_F(OnTheLine, KeepsTheDeviceAtMostAHundredMillisecondsAhead) {
  for (int z = 1; z <= 20; ++z) zone(z, 1);
  EXPECT_EQ(outbox.frames_waiting(now), 40);
  carry(1ms);
  EXPECT_EQ(heard.size(), 4u);
  carry(399ms);
  EXPECT_NEAR(static_cast<double>(heard.size()), 400 / 20.625 + 4, 1.0);
  EXPECT_EQ(outbox.frames_waiting(now), 40 - 19);
  carry(1s);
  EXPECT_EQ(heard.size(), 40u);
  EXPECT_EQ(outbox.backlog(now), 0ns);
  EXPECT_FALSE(outbox.next());
}

TEST_F(OnTheLine, LosesNoZoneWhereverTheLineBreaksOff) {
  for (int at = 0; at < 240 * 9; at += 5) {
    outbox = {};
    outbox.set_character(1'000'000'000ns * 11 / 4800);
    network = {};
    reader.reset();
    for (int z = 1; z <= 120; ++z) zone(z, 1);
    // What the device holds when it goes is lost: here all of the last 100 ms.
    rack::Network before;
    std::deque<std::pair<Outbox::Moment, rack::Frame>> in_device;
    const auto obey =
        std::exchange(came, [&](const rack::Frame& frame) { in_device.emplace_back(now, frame); });
    line.set_most_at_once(1 + static_cast<std::size_t>(at) % 9);
    for (room = static_cast<std::size_t>(at); room > 0; now += 1ms) outbox.hand_over(line, now);
    came = obey;
    for (const auto& [when, frame] : in_device)
      if (now - when > Outbox::kAhead) network.obey(rack::order_of(frame), {});
    line.set_lost(true);
    outbox.line_lost(now);
    reader.reset();
    now += 1min;
    ASSERT_EQ(outbox.hand_over(line, now), Outbox::HandedOver::kGone);
    line.set_lost(false);
    carry(6s);
    ASSERT_EQ(network.zones_on(), 120) << at;
  }
}

TEST_F(OnTheLine, AnAnswerToAPollPassesButPartsNoPairAndDiesWithTheLine) {
  for (int z = 1; z <= 10; ++z) zone(z, 1);
  carry(1ms, 5);  // five bytes of the first frame
  poll_answer();
  poll_answer();
  carry(100ms);
  ASSERT_GE(heard.size(), 6u);
  const std::string answer = "Ответ на опрос";
  EXPECT_EQ((std::vector{heard[2], heard[5]}), (std::vector{answer, answer})) << "a pair between them";
  EXPECT_EQ(heard[3], heard[4]);
  poll_answer();
  outbox.line_lost(now);
  heard.clear();
  carry(1s);
  EXPECT_EQ(std::count(heard.begin(), heard.end(), "Ответ на опрос"), 0);
  EXPECT_EQ(network.zones_on(), 10);
}

TEST_F(OnTheLine, PollsFasterThanTheLineKeepNoAlertFromIt) {
  for (int poll = 0; poll < 50; ++poll) poll_answer();
  for (int z = 1; z <= 20; ++z) zone(z, 1);
  carry(300ms);
  EXPECT_GE(network.zones_on(), 5) << "answers that waited before it go between";
  for (int poll = 0; poll < 100; ++poll) {
    poll_answer();
    carry(20ms);
  }
  EXPECT_EQ(network.zones_on(), 20);
  carry(2s);
  EXPECT_EQ(std::count(heard.begin(), heard.end(), "Ответ на опрос"), 150);
}

TEST_F(OnTheLine, ALongQueueDropsWhatIsOverriddenAndPairsStayPairs) {
  for (int round = 0; round < 100; ++round)
    for (int z = 1; z <= 60; ++z) zone(z, round % 2);
  EXPECT_LE(outbox.frames_waiting(now), 2 * 2 * 60);
  EXPECT_GT(outbox.dropped(), 10'000);
  carry(6s);
  EXPECT_EQ(network.zones_on(), 60) << "the last round's channel";
  for (int z = 1; z <= 60; ++z) EXPECT_EQ(network.zone(z).times_set % 2, 0) << z;
}

TEST_F(OnTheLine, WhatTheDeviceHasBegunStaysAPairAndAShortQueueStaysWhole) {
  zone(1, 1);
  zone(1, 2);
  carry(1s);
  EXPECT_EQ(heard.size(), 4u) << "less than two seconds: nothing is dropped";
  heard.clear();
  zone(1, 3);
  carry(1ms, 5);  // five bytes of its first frame
  for (int z = 2; z <= 100; ++z) zone(z, 1);
  zone(1, 4);
  carry(5s);
  ASSERT_EQ(heard.size(), 2u + 2 * 99 + 2);
  EXPECT_EQ(heard[0], heard[1]);
  EXPECT_NE(heard[0], heard.back());

  heard.clear();
  zone(1, 1);
  carry(1ms, 5);
  outbox.line_lost(now);
  reader.reset();
  carry(1s);
  EXPECT_EQ(heard.size(), 2u) << "from a frame's boundary";
}

TEST_F(OnTheLine, TheStopOfAllIsNeverFarAwayAndNothingBehindItIsLost) {
  for (int z = 1; z <= 120; ++z) zone(z, 1);
  for (int outlets = 0; outlets < 8; ++outlets)
    put(0x07, {static_cast<std::uint8_t>(outlets), 0xFF, 0xEE, 0, 0});
  stop();
  zone(7, 1);
  EXPECT_LE(outbox.frames_waiting(now), 2 + 8 + 1 + 2);
  carry(400ms);
  EXPECT_EQ(network.zones_on(), 1);
  EXPECT_TRUE(network.zone(7).on);
  EXPECT_TRUE(network.outlet(8, 8));
}

TEST_F(OnTheLine, ALineThatIsGoneForADayGathersNeitherAlertStartsNorQueries) {
  for (int minute = 0; minute < 24 * 60; ++minute) {
    put(0x0C, {0x01, 0x00, 0xD2, 0x00, 0xAA});
    put(0x20, {0x01, 0x02, 0xD2, 0x00, 0xAA});
    put(0x09, {0x00, 0x0F, 0xD2, 0x00, 0xAA});
    if (minute % 2) stop();
    put(0x0A, {0x03, static_cast<std::uint8_t>(1 + minute % 100), 0, 0, 0});
  }
  // Two seconds of them, and the last of each.
  EXPECT_LE(outbox.frames_waiting(now), 100 + 3 + 1 + 1);
  put(0x0C, {0x01, 0x00, 0xD2, 0x00, 0xAA});
  put(0x20, {0x01, 0x02, 0xD2, 0x00, 0xAA});
  put(0x09, {0x00, 0x0F, 0xD2, 0x00, 0xAA});
  carry(3s);
  EXPECT_TRUE(network.alert()) << "all three parts of the last one";
}

}  // namespace
}  // namespace evac
