// The frames that the console sends, byte for byte, and the faults of those that do not fit.
#include "link/link.h"

#include <gtest/gtest.h>

#include "drill/virtual_machine.h"
#include "drill/words.h"
#include "tests/scratch.h"

namespace evac {
namespace {

class LinkFrames : public testing::Test {
 protected:
  LinkFrames() : host(scratch.path), link({.state = state, .port = host.machine().port}) {
    host.machine().port.open();
  }

  // Everything sent since the last call: command and data bytes, frames apart by a bar; sync and sum are
  // checked here.
  std::string sent() {
    std::string text;
    for (const Frame9& frame : host.sent()) {
      int sum = 0;
      for (std::size_t i = 2; i < 8; ++i) {
        sum += frame[i];
        text += drill::hex_byte(frame[i]) + (i < 7 ? " " : "");
      }
      EXPECT_EQ(frame[0], 0xAA);
      EXPECT_EQ(frame[1], 0xAA);
      EXPECT_EQ(frame[8], sum & 0xFF);
      if (&frame != &host.sent().back()) text += " | ";
    }
    host.sent().clear();
    return text;
  }

  Scratch scratch;
  drill::VirtualMachine host;
  LinkState state;
  Link link;
};

TEST_F(LinkFrames, Catalogue) {
  link.SendZoneSet(5, 32, 120);
  EXPECT_EQ(sent(), "04 05 20 FD 78 00");
  link.SendTermSet(1, 0, 255);
  link.SendTermSet(1, 0, 256);
  EXPECT_EQ(sent(), "04 01 00 FC FF 00 | 04 01 00 FC 00 01");
  link.SendSource(Link::kSourceCommand, Link::kTuner, 7, 1, 99);
  link.SendSource(Link::kSourceCommand, Link::kCdDeck, 0, 4, 10);
  EXPECT_EQ(sent(), "06 12 07 01 99 00 | 06 11 00 04 10 00");
  link.SendAlertStart();
  EXPECT_EQ(sent(), "0C 01 00 D2 00 AA | 20 01 02 D2 00 AA | 09 00 0F D2 00 AA");
  link.SendAllStop();
  link.SendAlarm9(false);
  EXPECT_EQ(sent(), "09 00 FF 00 00 00 | 09 00 FF 00 00 00");
  link.SendAlarm9(true);
  link.SendAlarm10(true);
  link.SendAlarm10(false);
  EXPECT_EQ(sent(), "09 00 00 00 00 00 | 01 00 00 00 00 00 | 01 FF 00 00 00 00");
  link.SendSeqPower(2, 0x80);
  EXPECT_EQ(sent(), "07 02 80 EE 00 00");
  link.SendPollAnswer();
  EXPECT_EQ(sent(), "20 11 00 00 00 00");
  link.SendDate(Date{std::chrono::year(2026), std::chrono::November, std::chrono::day(22)});
  link.SendTime(86399);
  EXPECT_EQ(sent(), "FA 05 1A 0B 16 07 | FA 06 17 3B 3B 00");
}

TEST_F(LinkFrames, TheAlarmZonesAreOnUntilAStopHasGoneOut) {
  SerialPort& port = host.machine().port;
  port.close();
  link.SendAlertStart();
  EXPECT_FALSE(state.alarm_zones_on);
  port.open();
  link.SendAlertStart();
  link.SendAlarm9(true);
  port.close();
  link.SendAllStop();
  link.SendAlarm9(false);
  EXPECT_TRUE(state.alarm_zones_on);
  port.open();
  link.SendAlarm9(false);
  EXPECT_FALSE(state.alarm_zones_on);
}

TEST_F(LinkFrames, ScanQueryRoundsItsHighByte) {
  for (const int terminal : {1, 128, 129, 255}) link.SendScanQuery(terminal);
  EXPECT_EQ(sent(), "0A 03 01 00 00 00 | 0A 03 80 00 00 00 | 0A 03 81 01 00 00 | 0A 03 FF 01 00 00");
}

TEST_F(LinkFrames, WhatDoesNotFitItsByteIsAnOverflowAndNothingGoesOut) {
  const auto number_of = [](auto&& send) {
    try {
      send();
    } catch (const Fault& fault) {
      return fault.number();
    }
    return 0;
  };
  EXPECT_EQ(number_of([&] { link.SendSource(Link::kSourceCommand, Link::kCdDeck, 0, 4, 100); }), 6);
  EXPECT_EQ(number_of([&] { link.SendZoneSet(256, 1, 1); }), 6);
  EXPECT_EQ(number_of([&] { link.SendZoneSet(1, -1, 1); }), 6);
  EXPECT_EQ(sent(), "");
}

TEST_F(LinkFrames, TheLastFrameStandsInBothBuffers) {
  int frames = 0;
  link.frame_received = [&] { ++frames; };
  for (const int byte : {0x55, 0xAA, 0xAA, 0xAA, 1, 2, 3, 4, 5, 6, 0xAA, 0x10})
    link.take(static_cast<std::uint8_t>(byte));
  EXPECT_EQ(frames, 1);
  EXPECT_EQ(state.r_frame, (Frame9{0xAA, 0xAA, 0xAA, 1, 2, 3, 4, 5, 6}));
  EXPECT_EQ(state.r_buf[0], 0xAA);
  EXPECT_EQ(state.r_buf[6], 6);
  EXPECT_EQ(state.rx_state, 0);
}

}  // namespace
}  // namespace evac
