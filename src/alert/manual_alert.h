// The manual panel of the alarm tab: the manual message, the test start of an algorithm, the stop of
// detection, and all zones into the alarm and back.
#pragma once

#include "alert/alert_end.h"
#include "alert/followed_message.h"
#include "alert/zone_lamps.h"
#include "journal/journal.h"
#include "link/link.h"
#include "model/system_model.h"
#include "platform/machine.h"

namespace evac {

class ManualAlert {
 public:
  ManualAlert(AlertState& alert, const SettingsState& settings, const PaintState& paint, AlarmTab& tab,
              ZoneLamps& lamps, AlertEnd& end, Media& MP1, EventLoop& loop, Boxes& boxes, Link& link,
              Journal& journal)
      : alert_(alert),
        settings_(settings),
        paint_(paint),
        tab_(tab),
        lamps_(lamps),
        end_(end),
        MP1_(MP1),
        message_(MP1, alert.man_end, settings, loop),
        boxes_(boxes),
        link_(link),
        journal_(journal) {}

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
  std::string file() const { return tab_.CmbF.text(); }
  void simulate_input(int zone);

  AlertState& alert_;
  const SettingsState& settings_;
  const PaintState& paint_;
  AlarmTab& tab_;
  ZoneLamps& lamps_;
  AlertEnd& end_;
  Media& MP1_;
  FollowedMessage message_;
  Boxes& boxes_;
  Link& link_;
  Journal& journal_;
};

}  // namespace evac
