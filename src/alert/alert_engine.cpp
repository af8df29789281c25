#include "alert/alert_engine.h"

#include "alert/alert_type.h"
#include "model/text.h"

namespace evac {

void AlertEngine::tick() {
  if (doors_.alert.fire_stop || doors_.alert.msg_manual) return;
  switch (alert_type(doors_.settings)) {
    case kTypeBlock:
      doors_.block.check();
      break;
    case kTypeManual:
      doors_.tab.LblU[kModeLine].set_caption("Ручное оповещение");
      break;
    case kTypeController:
      scan_inputs();
      break;
  }
}

void AlertEngine::scan_inputs() {
  // A card that is missing leaves its words at 0.
  Words words{};
  if (!doors_.alert.fire_sim)
    for (std::size_t i = 0; i < kBankTable.size(); ++i)
      // A card that fails gives its last word, and the watch says so.
      static_cast<void>(
          doors_.cards.read_port(kBankTable[i].card == 0 ? doors_.alert.di_card0 : doors_.alert.di_card1,
                                 kBankTable[i].port, words[i]));

  // The inputs of the fourth bank are read, and on purpose start nothing: its zones are alerted only as zones
  // of another zone's algorithm.
  for (int bank = 1; bank < kBanks; ++bank)
    if (!scan_bank(bank, words)) return;

  if (!doors_.alert.al_active) {
    doors_.tab.LblU[kModeLine].set_caption("Автоматическое оповещение о пожаре");
    doors_.tab.LblU[kSecondLine].set_caption("");
  }
}

void AlertEngine::reset() {
  doors_.end.AlertReset();
  restarts_.reset(doors_.loop.now());
}

bool AlertEngine::scan_bank(int bank, const Words& words) {
  if (inputs_of(bank, words) == 0 && !doors_.alert.al_bank[bank]) return true;
  const Bank& row = kBankTable[static_cast<std::size_t>(bank - 1)];
  std::int32_t sum = 0;
  for (int zone = row.first_zone; zone <= row.last_zone; ++zone) {
    const std::int32_t bit = input_bit(zone - row.first_zone) & inputs_of(bank, words);
    sum += bit;
    auto& seen = doors_.alert.fire_seen[bank][static_cast<std::size_t>(zone - 1)];
    if (seen == bit || bit == 0 || (doors_.alert.al_bank[bank] && !doors_.alert.al_alarm_zones)) continue;
    if (doors_.alert.al_alarm_zones) {
      reset();
      doors_.alert.al_active = doors_.alert.al_bank[bank] = doors_.alert.al_alarm_zones = false;
    }
    seen += bit;
    doors_.alert.al_active = doors_.alert.al_bank[bank] = true;
    doors_.journal.JournalLine(join("ПОЖАР! в Зоне: \t", zone));
    restarts_.started(zone, doors_.loop.now());
    if (!doors_.algorithm.start(zone, row)) return false;
  }
  if (sum == 0 && doors_.alert.al_bank[bank]) {
    reset();
    doors_.alert.al_active = doors_.alert.al_bank[bank] = false;
  }
  return true;
}

std::int32_t AlertEngine::inputs_of(int bank, const Words& words) const {
  return (doors_.alert.fire_sim ? doors_.alert.fire_bits : words)[static_cast<std::size_t>(bank - 1)];
}

}  // namespace evac
