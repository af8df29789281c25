#include "alert/manual_alert.h"

#include <cmath>
#include <limits>

#include "alert/banks.h"
#include "model/text.h"

namespace evac {
namespace {

// The zone whose input is taken as the sign of its word; in the other banks the sign is a number too large.
constexpr int kSignZone = 32;

}  // namespace

void ManualAlert::start_message() {
  if (!boxes_.ask("Включить сообщение?", "Сообщение???")) return;
  alert_.msg_cancel = false;
  tab_.CmdCan.set_back_color(paint_.ColorButtonFace);
  alert_.msg_manual = true;
  tab_.CmdAl.set_back_color(Color::kOn);
  if (!message_.play(file())) {
    boxes_.message(join("Ошибка открытия файла ", file()));
    return;
  }
  tab_.Timer6.set_enabled(true);
  journal_.JournalLine(join("Сообщение:  ", file(), " повторов: ", settings_.SettingsLine[kManualPlays]));
}

void ManualAlert::cancel_message() {
  alert_.msg_cancel = !alert_.msg_cancel;
  if (!alert_.msg_cancel) {
    tab_.CmdCan.set_back_color(paint_.ColorButtonFace);
    return;
  }
  tab_.CmdCan.set_back_color(Color::kOn);
  alert_.msg_manual = false;
  tab_.CmdAl.set_back_color(paint_.ColorButtonFace);
  tab_.Timer6.set_enabled(false);
  message_.end_in(1);
  MP1_.stop();
}

void ManualAlert::tick() {
  const int left = message_.left();
  const std::string time = time_left_text(left);
  tab_.LblU[kModeLine].set_caption(join("Сообщение:  ", file(), " ", time, " повторов: ", alert_.man_rep));
  tab_.LblT.set_caption(time);
  if (left != 0) return;
  if (--alert_.man_rep >= 1) {
    message_.play(file());
    return;
  }
  tab_.Timer6.set_enabled(false);
  const int plays = ClampedNumber(settings_.SettingsLine[kManualPlays]);
  alert_.man_rep = plays;
  tab_.VS1.set_value(plays);
}

void ManualAlert::start_algorithm() {
  if (!boxes_.ask(join("Включить алгоритм № ", tab_.LblFD.caption()), "Алгоритм???")) return;
  alert_.fire_sim = true;
  alert_.fire_stop = false;
  tab_.CmdStF.set_back_color(paint_.ColorButtonFace);
  alert_.fire_bits.fill(0);
  const int zone = ClampedNumber(Trim(tab_.LblFD.caption()));
  if (zone < 1 || zone > kZones) {
    boxes_.message("Укажите номер зоны пожара");
    return;
  }
  simulate_input(zone);
  tab_.CmdDem.set_back_color(Color::kFireTest);
}

void ManualAlert::simulate_input(int zone) {
  std::size_t bank = 0;
  while (zone > kBankTable[bank].last_zone) ++bank;
  const double bit = std::ldexp(1.0, zone - kBankTable[bank].first_zone);
  const double word = alert_.fire_bits[bank] + (zone == kSignZone ? -bit : bit);
  if (word > std::numeric_limits<std::int32_t>::max()) overflow();
  alert_.fire_bits[bank] = static_cast<std::int32_t>(word);
}

void ManualAlert::stop_detection() {
  alert_.fire_stop = !alert_.fire_stop;
  if (!alert_.fire_stop) {
    tab_.CmdStF.set_back_color(paint_.ColorButtonFace);
    return;
  }
  tab_.CmdStF.set_back_color(Color::kOn);
  end_.AlertReset();
  tab_.CmdDem.set_back_color(paint_.ColorButtonFace);
  alert_.fire_sim = false;
}

void ManualAlert::alert_all_zones() {
  if (!alert_.al_all_on) {
    link_.SendAlertStart();
    tab_.CmdAlAl.set_back_color(Color::kOn);
    lamps_.all_alerted();
  } else {
    end_.release_all_zones();
    tab_.CmdAlAl.set_back_color(paint_.ColorButtonFace);
  }
  alert_.al_all_on = !alert_.al_all_on;
}

void ManualAlert::plays_changed() {
  tab_.LblKl.set_caption(std::to_string(tab_.VS1.value()));
  alert_.man_rep = tab_.VS1.value();
}

void ManualAlert::test_zone_changed() {
  tab_.LblFD.set_caption(std::to_string(tab_.VSFD.value()));
  alert_.man_rep = tab_.VS1.value();
}

}  // namespace evac
