#include "alert/block_alert.h"

#include "model/text.h"

namespace evac {
namespace {

// The report of an alarm, as it lies in the last frame.
constexpr std::size_t kReportByte = 4, kZoneByte = 5;
constexpr int kAlarmReport = 15;

constexpr int kSourceComputer = 1;

}  // namespace

void BlockAlert::check() {
  if (link_.r_frame[kReportByte] == kAlarmReport && !alert_.al_active) start();
  if (!alert_.al_active) tab_.LblU[kModeLine].set_caption("Q-4710");
}

void BlockAlert::start() {
  alert_.al_active = true;
  const int zone = link_.r_frame[kZoneByte] + 1;
  lamps_.fire(zone);
  journal_.JournalLine(join("ПОЖАР! в Зоне: \t", zone));
  const auto tell = [this](std::string_view text) {
    tab_.LblU[kModeLine].set_caption(text);
    journal_.JournalLine(text);
  };
  if (ClampedNumber(settings_.SettingsLine[kBlockSource]) == kSourceComputer)
    start_message();
  else
    tell("Идет оповещение о пожаре");
  tell("Оповещение всех зон");
}

void BlockAlert::start_message() {
  const auto length = message_.play(file());
  if (!length) {
    boxes_.message(join("Ошибка открытия файла ", file()));
    return;
  }
  tab_.Timer5.set_enabled(true);
  journal_.JournalLine(
      join("Сообщение:  ", file(), " длина: ", *length, " повторов: ", settings_.SettingsLine[kBlockPlays]));
  house_.silence();
}

void BlockAlert::tick() {
  if (alert_.fire_stop || alert_.msg_manual) return;
  const int left = message_.left();
  const std::string time = time_left_text(left);
  tab_.LblU[kModeLine].set_caption(join("Сообщение:  ", file(), " ", time, " повторов: ", alert_.al_rep));
  tab_.LblU[kSecondLine].set_caption("  ПОЖАР");
  tab_.LblT.set_caption(time);
  if (left != 0) return;
  if (--alert_.al_rep >= 1) {
    message_.play(file());
    return;
  }
  // The sound is over; the alert itself lasts until it is reset.
  tab_.Timer5.set_enabled(false);
  alert_.al_rep = ClampedNumber(settings_.SettingsLine[kBlockPlays]);
  lamps_.all_idle();
  house_.give_back();
}

}  // namespace evac
