// The manual panel of the alarm tab: the manual message, the test start of an algorithm, the stop of
// detection, and all zones into the alarm and back.
#pragma once

#include "alert/alert_end.h"
#include "alert/zone_lamps.h"
#include "journal/journal.h"
#include "link/link.h"
#include "model/system_model.h"
#include "platform/machine.h"
#include "sound/followed_message.h"

namespace evac {

class ManualAlert {
 public:
  struct Doors {
    AlertState& alert;
    const SettingsState& settings;
    const PaintState& paint;
    AlarmTab& tab;
    ZoneLamps& lamps;
    AlertEnd& end;
    Media& MP1;
    MessageState& messages;
    EventLoop& loop;
    Boxes& boxes;
    Link& link;
    Journal& journal;
  };
  explicit ManualAlert(const Doors& doors)
      : doors_(doors),
        message_({.media = doors.MP1,
                  .end = doors.alert.man_end,
                  .settings = doors.settings,
                  .loop = doors.loop,
                  .file_given = &doors.messages.mp1_file}) {}

  // CmdAl. The engine is held from here until the message is cancelled, also past its last play. No zone is
  // switched: the operator routes the message.
  void start_message();
  // CmdCan.
  void cancel_message();
  // Timer6: repeats the message.
  void tick();
  // CmdDem: simulates the input of a zone; the cards are not read from here on. An overflow fault for zones
  // 64 and 96, whose input is the sign of its word.
  void start_algorithm();
  // CmdStF.
  void stop_detection();
  // CmdAlAl.
  void alert_all_zones();

  void plays_changed();
  void test_zone_changed();

 private:
  std::string file() const { return doors_.tab.CmbF.text(); }
  void simulate_input(int zone);

  const Doors doors_;
  FollowedMessage message_;
};

}  // namespace evac
