// Alerts that the external block reports to the controller: one message for all zones, played by the PC or by
// the block itself. The block and the controller switch the zones.
#pragma once

#include "alert/house.h"
#include "alert/zone_lamps.h"
#include "journal/journal.h"
#include "model/system_model.h"
#include "platform/machine.h"
#include "sound/followed_message.h"

namespace evac {

class BlockAlert {
 public:
  struct Doors {
    AlertState& alert;
    const SettingsState& settings;
    const LinkState& link;
    AlarmTab& tab;
    ZoneLamps& lamps;
    House& house;
    Media& MP2;
    EventLoop& loop;
    Boxes& boxes;
    Journal& journal;
  };
  explicit BlockAlert(const Doors& doors)
      : doors_(doors),
        message_(
            {.media = doors.MP2, .end = doors.alert.al_end, .settings = doors.settings, .loop = doors.loop}) {
  }

  // Looks for an alarm in the last frame. The frame is not used up: it raises the alarm again as soon as the
  // alert is reset. A zone without a lamp is a fault.
  void check();
  // Whether such a frame reports an alarm.
  static bool reports_alarm(const Frame9& frame);
  // Timer5: repeats the message and ends its sound.
  void tick();

  const FollowedMessage& message() const { return message_; }

 private:
  void start();
  void start_message();
  const std::string& file() const { return doors_.settings.SettingsLine[kBlockMessage]; }

  const Doors doors_;
  FollowedMessage message_;
};

}  // namespace evac
