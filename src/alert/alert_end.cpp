#include "alert/alert_end.h"

#include "model/text.h"

namespace evac {

void AlertEnd::AlertReset() {
  silence();
  for (auto& seen : doors_.alert.fire_seen) seen.fill(0);
  doors_.alert.al_bank.fill(false);
  to_rest();
}

void AlertEnd::release_all_zones() {
  silence();
  doors_.MP1.stop();
  to_rest();
}

void AlertEnd::silence() {
  doors_.link.SendAllStop();
  doors_.alert.fire_bits.fill(0);
  doors_.tab.Timer5.set_enabled(false);
  doors_.tab.Timer6.set_enabled(false);
  doors_.tab.Timer7.set_enabled(false);
  doors_.tab.LblU[kModeLine].set_caption("");
  doors_.tab.LblU[kSecondLine].set_caption("");
  doors_.MP2.stop();
}

void AlertEnd::to_rest() {
  doors_.alert.clear_active();
  doors_.alert.al_rep = Number(doors_.settings.SettingsLine[kBlockPlays]);
  doors_.lamps.all_idle();
  doors_.journal.JournalLine("Сброс аварийного оповещения");
}

}  // namespace evac
