// Alerts that the external block reports to the controller: one message for all zones, played by the PC or by
// the block itself. The block and the controller switch the zones.
#pragma once

#include "alert/followed_message.h"
#include "alert/house.h"
#include "alert/zone_lamps.h"
#include "journal/journal.h"
#include "model/system_model.h"
#include "platform/machine.h"

namespace evac {

class BlockAlert {
 public:
  BlockAlert(AlertState& alert, const SettingsState& settings, const LinkState& link, AlarmTab& tab,
             ZoneLamps& lamps, House& house, Media& MP2, EventLoop& loop, Boxes& boxes, Journal& journal)
      : alert_(alert),
        settings_(settings),
        link_(link),
        tab_(tab),
        lamps_(lamps),
        house_(house),
        message_(MP2, alert.al_end, settings, loop),
        boxes_(boxes),
        journal_(journal) {}

  // Looks for an alarm in the last frame. The frame is not used up: it raises the alarm again as soon as the
  // alert is reset. A zone without a lamp is a fault.
  void check();
  // Timer5: repeats the message and ends its sound.
  void tick();

 private:
  void start();
  void start_message();
  const std::string& file() const { return settings_.SettingsLine[kBlockMessage]; }

  AlertState& alert_;
  const SettingsState& settings_;
  const LinkState& link_;
  AlarmTab& tab_;
  ZoneLamps& lamps_;
  House& house_;
  FollowedMessage message_;
  Boxes& boxes_;
  Journal& journal_;
};

}  // namespace evac
