#include "alert/block_alert.h"

#include "model/text.h"

namespace evac {
namespace {

// The report of an alarm, as it lies in the last frame.
constexpr std::size_t kReportByte = 4, kZoneByte = 5;
constexpr int kAlarmReport = 15;

constexpr int kSourceComputer = 1;

}  // namespace

bool BlockAlert::reports_alarm(const Frame9& frame) {
  return frame[kReportByte] == kAlarmReport;
}

void BlockAlert::check() {
  if (reports_alarm(doors_.link.r_frame) && !doors_.alert.al_active) start();
  if (!doors_.alert.al_active) doors_.tab.LblU[kModeLine].set_caption("Q-4710");
}

void BlockAlert::start() {
  doors_.alert.al_active = true;
  const int zone = doors_.link.r_frame[kZoneByte] + 1;
  doors_.alert.block_zone = static_cast<std::int16_t>(zone);
  message_.forget_outcome();
  doors_.lamps.fire(zone);
  doors_.journal.JournalLine(join("ПОЖАР! в Зоне: \t", zone));
  const auto tell = [this](std::string_view text) {
    doors_.tab.LblU[kModeLine].set_caption(text);
    doors_.journal.JournalLine(text);
  };
  if (Number(doors_.settings.SettingsLine[kBlockSource]) == kSourceComputer)
    start_message();
  else
    tell("Идет оповещение о пожаре");
  tell("Оповещение всех зон");
}

void BlockAlert::start_message() {
  const auto length = message_.play(file());
  if (!length) {
    doors_.boxes.message(join("Ошибка открытия файла ", file()));
    return;
  }
  doors_.tab.Timer5.set_enabled(true);
  doors_.journal.JournalLine(join("Сообщение:  ", file(), " длина: ", *length,
                                  " повторов: ", doors_.settings.SettingsLine[kBlockPlays]));
  doors_.house.silence();
}

void BlockAlert::tick() {
  if (doors_.alert.fire_stop || doors_.alert.msg_manual) return;
  const int left = message_.left();
  const std::string time = time_left_text(left);
  doors_.tab.LblU[kModeLine].set_caption(
      join("Сообщение:  ", file(), " ", time, " повторов: ", doors_.alert.al_rep));
  doors_.tab.LblU[kSecondLine].set_caption("  ПОЖАР");
  doors_.tab.LblT.set_caption(time);
  if (left != 0) return;
  if (--doors_.alert.al_rep >= 1) {
    message_.play(file());
    return;
  }
  // The sound is over; the alert itself lasts until it is reset.
  doors_.tab.Timer5.set_enabled(false);
  doors_.alert.al_rep = Number(doors_.settings.SettingsLine[kBlockPlays]);
  doors_.lamps.all_idle();
  doors_.house.give_back();
}

}  // namespace evac
