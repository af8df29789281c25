// The algorithm of the zone of fire: its steps one after the other, each with zones to switch on and a
// message to play a number of times. Steps add zones; none is switched off before the end.
#pragma once

#include "alert/banks.h"
#include "alert/followed_message.h"
#include "alert/house.h"
#include "alert/zone_lamps.h"
#include "journal/journal.h"
#include "link/link.h"
#include "model/system_model.h"
#include "platform/machine.h"

namespace evac {

class AlgorithmRun {
 public:
  AlgorithmRun(AlertState& alert, const AlgorithmState& algorithms, const SourceState& sources, AlarmTab& tab,
               ZoneLamps& lamps, House& house, const SettingsState& settings, Media& MP2, EventLoop& loop,
               Boxes& boxes, Link& link, Journal& journal)
      : alert_(alert),
        algorithms_(algorithms),
        sources_(sources),
        tab_(tab),
        lamps_(lamps),
        house_(house),
        message_(MP2, alert.alg_end, settings, loop),
        boxes_(boxes),
        link_(link),
        journal_(journal) {}

  // Starts the first step of the zone's algorithm, on top of one that runs. False when the zone has none.
  bool start(int zone, const Bank& bank);
  // Timer7: repeats the message, takes the next step, ends the algorithm. The step behind the last one of the
  // table is a fault.
  void tick();

 private:
  // Switches on the zones whose mark is one of `marks`.
  void switch_on(std::string_view zones, std::string_view marks, std::string_view heading);
  // False when the message can't be opened.
  bool play(std::string_view record);
  void play_step();
  void finish();
  const std::string& step(int n) const { return algorithms_.AlgZoneTable[alert_.alg_zone][n]; }

  AlertState& alert_;
  const AlgorithmState& algorithms_;
  const SourceState& sources_;
  AlarmTab& tab_;
  ZoneLamps& lamps_;
  House& house_;
  FollowedMessage message_;
  Boxes& boxes_;
  Link& link_;
  Journal& journal_;
};

}  // namespace evac
