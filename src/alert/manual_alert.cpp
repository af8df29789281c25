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
  if (!doors_.boxes.ask("Включить сообщение?", "Сообщение???")) return;
  doors_.alert.msg_cancel = false;
  doors_.tab.CmdCan.set_back_color(doors_.paint.ColorButtonFace);
  doors_.alert.msg_manual = true;
  doors_.tab.CmdAl.set_back_color(Color::kOn);
  if (!message_.play(file())) {
    doors_.boxes.message(join("Ошибка открытия файла ", file()));
    return;
  }
  doors_.tab.Timer6.set_enabled(true);
  doors_.journal.JournalLine(
      join("Сообщение:  ", file(), " повторов: ", doors_.settings.SettingsLine[kManualPlays]));
}

void ManualAlert::cancel_message() {
  doors_.alert.msg_cancel = !doors_.alert.msg_cancel;
  if (!doors_.alert.msg_cancel) {
    doors_.tab.CmdCan.set_back_color(doors_.paint.ColorButtonFace);
    return;
  }
  doors_.tab.CmdCan.set_back_color(Color::kOn);
  doors_.alert.msg_manual = false;
  doors_.tab.CmdAl.set_back_color(doors_.paint.ColorButtonFace);
  doors_.tab.Timer6.set_enabled(false);
  message_.end_in(1);
  doors_.MP1.stop();
}

void ManualAlert::tick() {
  const int left = message_.left();
  const std::string time = time_left_text(left);
  doors_.tab.LblU[kModeLine].set_caption(
      join("Сообщение:  ", file(), " ", time, " повторов: ", doors_.alert.man_rep));
  doors_.tab.LblT.set_caption(time);
  if (left != 0) return;
  if (--doors_.alert.man_rep >= 1) {
    message_.play(file());
    return;
  }
  doors_.tab.Timer6.set_enabled(false);
  const int plays = Number(doors_.settings.SettingsLine[kManualPlays]);
  doors_.alert.man_rep = plays;
  doors_.tab.VS1.set_value(plays);
}

void ManualAlert::start_algorithm() {
  if (!doors_.boxes.ask(join("Включить алгоритм № ", doors_.tab.LblFD.caption()), "Алгоритм???")) return;
  doors_.alert.test_zone = static_cast<std::int16_t>(Number(doors_.tab.LblFD.caption()));
  doors_.alert.fire_sim = true;
  doors_.alert.fire_stop = false;
  doors_.tab.CmdStF.set_back_color(doors_.paint.ColorButtonFace);
  doors_.alert.fire_bits.fill(0);
  const int zone = Number(Trim(doors_.tab.LblFD.caption()));
  if (zone < 1 || zone > kZones) {
    doors_.boxes.message("Укажите номер зоны пожара");
    return;
  }
  simulate_input(zone);
  doors_.tab.CmdDem.set_back_color(Color::kFireTest);
}

void ManualAlert::simulate_input(int zone) {
  std::size_t bank = 0;
  while (zone > kBankTable[bank].last_zone) ++bank;
  const double bit = std::ldexp(1.0, zone - kBankTable[bank].first_zone);
  const double word = doors_.alert.fire_bits[bank] + (zone == kSignZone ? -bit : bit);
  if (word > std::numeric_limits<std::int32_t>::max()) overflow();
  doors_.alert.fire_bits[bank] = static_cast<std::int32_t>(word);
}

void ManualAlert::stop_detection() {
  doors_.alert.fire_stop = !doors_.alert.fire_stop;
  if (!doors_.alert.fire_stop) {
    doors_.tab.CmdStF.set_back_color(doors_.paint.ColorButtonFace);
    return;
  }
  doors_.tab.CmdStF.set_back_color(Color::kOn);
  doors_.end.AlertReset();
  doors_.tab.CmdDem.set_back_color(doors_.paint.ColorButtonFace);
  doors_.alert.fire_sim = false;
}

void ManualAlert::alert_all_zones() {
  if (!doors_.alert.al_all_on) {
    doors_.link.SendAlertStart();
    doors_.tab.CmdAlAl.set_back_color(Color::kOn);
    doors_.lamps.all_alerted();
  } else {
    doors_.end.release_all_zones();
    doors_.tab.CmdAlAl.set_back_color(doors_.paint.ColorButtonFace);
  }
  doors_.alert.al_all_on = !doors_.alert.al_all_on;
}

void ManualAlert::plays_changed() {
  doors_.tab.LblKl.set_caption(std::to_string(doors_.tab.VS1.value()));
  doors_.alert.man_rep = doors_.tab.VS1.value();
}

void ManualAlert::test_zone_changed() {
  doors_.tab.LblFD.set_caption(std::to_string(doors_.tab.VSFD.value()));
  doors_.alert.man_rep = doors_.tab.VS1.value();
}

}  // namespace evac
