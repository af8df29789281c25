#include "alert/alert_end.h"

#include "model/text.h"

namespace evac {

void AlertEnd::AlertReset() {
  silence();
  for (auto& seen : alert_.fire_seen) seen.fill(0);
  alert_.al_bank.fill(false);
  to_rest();
}

void AlertEnd::release_all_zones() {
  silence();
  MP1_.stop();
  to_rest();
}

void AlertEnd::silence() {
  link_.SendAllStop();
  alert_.fire_bits.fill(0);
  tab_.Timer5.set_enabled(false);
  tab_.Timer6.set_enabled(false);
  tab_.Timer7.set_enabled(false);
  tab_.LblU[kModeLine].set_caption("");
  tab_.LblU[kSecondLine].set_caption("");
  MP2_.stop();
}

void AlertEnd::to_rest() {
  alert_.al_active = false;
  alert_.al_rep = ClampedNumber(settings_.SettingsLine[kBlockPlays]);
  lamps_.all_idle();
  journal_.JournalLine("Сброс аварийного оповещения");
}

}  // namespace evac
