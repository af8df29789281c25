// The frames that do not fit their bytes, the alarm zones as the line knows them, and the receiving end.
#include "link/link.h"

#include <gtest/gtest.h>

#include "drill/virtual_machine.h"
#include "tests/scratch.h"

namespace evac {
namespace {

class LinkFrames : public testing::Test {
 protected:
  LinkFrames() : host(scratch.path), link({.state = state, .port = host.machine().port}) {
    host.machine().port.open();
  }

  Scratch scratch;
  drill::VirtualMachine host;
  LinkState state;
  Link link;
};

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
