// The algorithm of the zone of fire: its steps one after the other, each with zones to switch on and a
// message to play a number of times. Steps add zones; none is switched off before the end.
#pragma once

#include "alert/banks.h"
#include "alert/house.h"
#include "alert/zone_lamps.h"
#include "journal/journal.h"
#include "link/link.h"
#include "model/system_model.h"
#include "platform/machine.h"
#include "sound/followed_message.h"

namespace evac {

class AlgorithmRun {
 public:
  struct Doors {
    AlertState& alert;
    const AlgorithmState& algorithms;
    const SourceState& sources;
    AlarmTab& tab;
    ZoneLamps& lamps;
    House& house;
    const SettingsState& settings;
    Media& MP2;
    EventLoop& loop;
    Boxes& boxes;
    Link& link;
    Journal& journal;
  };
  explicit AlgorithmRun(const Doors& doors)
      : doors_(doors),
        message_({.media = doors.MP2,
                  .end = doors.alert.alg_end,
                  .settings = doors.settings,
                  .loop = doors.loop}) {}

  // Starts the first step of the zone's algorithm, on top of one that runs. False when the zone has none.
  bool start(int zone, const Bank& bank);
  // Timer7: repeats the message, takes the next step, ends the algorithm. The step behind the last one of the
  // table is a fault.
  void tick();

  const FollowedMessage& message() const { return message_; }

 private:
  // Switches on the zones whose mark is one of `marks`.
  void switch_on(std::string_view zones, std::string_view marks, std::string_view heading);
  // False when the message can't be opened.
  bool play(std::string_view record);
  void play_step();
  void finish();
  const std::string& step(int n) const { return doors_.algorithms.AlgZoneTable[doors_.alert.alg_zone][n]; }

  const Doors doors_;
  FollowedMessage message_;
};

}  // namespace evac
