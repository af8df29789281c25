// The alarm zones as the line knows them.
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

}  // namespace
}  // namespace evac
