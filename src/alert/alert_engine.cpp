#include "alert/alert_engine.h"

#include "model/text.h"

namespace evac {
namespace {

enum AlertType { kTypeBlock = 1, kTypeManual = 2, kTypeController = 3 };

// The last words, in the order in which they are kept: a bank each.
constexpr std::array<std::size_t, kBanks> kLastOrder = {1, 0, 3, 2};

}  // namespace

void AlertEngine::tick() {
  if (alert_.fire_stop || alert_.msg_manual) return;
  switch (ClampedNumber(settings_.SettingsLine[kAlertType])) {
    case kTypeBlock:
      block_.check();
      break;
    case kTypeManual:
      tab_.LblU[kModeLine].set_caption("Ручное оповещение");
      break;
    case kTypeController:
      scan_inputs();
      break;
  }
}

void AlertEngine::scan_inputs() {
  // A card that is missing leaves its words at 0; one that fails neither raises nor ends an alert.
  Words words{};
  if (!alert_.fire_sim)
    for (std::size_t i = 0; i < kBankTable.size(); ++i)
      (void)cards_.read_port(kBankTable[i].card == 0 ? alert_.di_card0 : alert_.di_card1, kBankTable[i].port,
                             words[i]);
  const Words& present = alert_.fire_sim ? alert_.fire_bits : words;
  for (std::size_t i = 0; i < kLastOrder.size(); ++i) alert_.di_last[i] = present[kLastOrder[i]];

  for (int bank = 1; bank < kBanks; ++bank)
    if (!scan_bank(bank, words)) return;
  keep_bank4_bit(words);

  if (!alert_.al_active) {
    tab_.LblU[kModeLine].set_caption("Автоматическое оповещение о пожаре");
    tab_.LblU[kSecondLine].set_caption("");
  }
}

bool AlertEngine::scan_bank(int bank, const Words& words) {
  const Bank& row = kBankTable[static_cast<std::size_t>(bank - 1)];
  std::int32_t sum = 0;
  for (int zone = row.first_zone; zone <= row.last_zone; ++zone) {
    const std::int32_t bit = masked_input(bank, zone, words);
    sum += bit;
    auto& seen = alert_.fire_seen[bank][static_cast<std::size_t>(zone - 1)];
    if (seen == bit || bit == 0 || (alert_.al_bank[bank] && !alert_.al_alarm_zones)) continue;
    if (alert_.al_alarm_zones) {
      end_.AlertReset();
      alert_.al_active = alert_.al_bank[bank] = alert_.al_alarm_zones = false;
    }
    seen += bit;
    alert_.al_active = alert_.al_bank[bank] = true;
    journal_.JournalLine(join("ПОЖАР! в Зоне: \t", zone));
    if (!algorithm_.start(zone, row)) return false;
  }
  if (sum == 0 && alert_.al_bank[bank]) {
    end_.AlertReset();
    alert_.al_active = alert_.al_bank[bank] = false;
  }
  return true;
}

// The fourth bank's inputs are read and kept, and on purpose start nothing: its zones are alerted only as
// zones of another zone's algorithm.
void AlertEngine::keep_bank4_bit(const Words& words) {
  const Bank& row = kBankTable.back();
  for (int zone = row.first_zone; zone <= row.last_zone; ++zone)
    alert_.bank4_bit = masked_input(kBanks, zone, words);
}

// Simulated inputs are taken as they stand at this moment: a reset inside the scan clears them.
std::int32_t AlertEngine::masked_input(int bank, int zone, const Words& words) const {
  const auto at = static_cast<std::size_t>(bank - 1);
  const auto input = static_cast<std::size_t>(zone - kBankTable[at].first_zone);
  return alert_.bit_mask[input] & (alert_.fire_sim ? alert_.fire_bits : words)[at];
}

}  // namespace evac
