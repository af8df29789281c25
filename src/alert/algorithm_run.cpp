#include "alert/algorithm_run.h"

#include "model/text.h"
#include "store/algorithm_record.h"

namespace evac {
namespace {

// In the first play of a first step the alarm mark switches its own zone on too; later it does not.
constexpr std::string_view kFirstPlayMarks = "17", kLaterMarks = "1";
constexpr std::string_view kLaterHeading = "Включаемые зоны:";

int plays_of(std::string_view record) {
  return ClampedNumber(AlgField(record, kAlgPlays));
}

}  // namespace

bool AlgorithmRun::start(int zone, const Bank& bank) {
  const std::string& record = algorithms_.AlgZoneTable[zone][1];
  if (record.empty()) {
    tab_.LblU[kModeLine].set_caption(join("Алгоритм ", zone, bank.no_steps));
    return false;
  }
  alert_.alg_step = 1;
  alert_.alg_zone = static_cast<std::int16_t>(zone);
  const std::string zones = AlgField(record, kAlgZones);
  switch_on(zones, kFirstPlayMarks, bank.heading);
  if (zones.starts_with(kAlarmMark)) {
    link_.SendAlertStart();
    alert_.al_alarm_zones = true;
    journal_.JournalLine("Включение аварийных зон");
  }
  lamps_.fire(zone);
  alert_.alg_rep = plays_of(record);
  if (play(record))
    tab_.Timer7.set_enabled(true);
  else
    boxes_.message(join(bank.open_error, AlgField(record, kAlgMessage)));
  house_.silence();
  return true;
}

void AlgorithmRun::tick() {
  if (alert_.fire_stop || alert_.msg_manual) return;
  const int left = message_.left();
  const std::string time = time_left_text(left);
  tab_.LblU[kModeLine].set_caption(join("Сообщение:  ", AlgField(step(alert_.alg_step), kAlgMessage), " ",
                                        time, " повторов: ", alert_.alg_rep));
  tab_.LblU[kSecondLine].set_caption(
      join("  Зона пожара - ", alert_.alg_zone, "  Запись - ", alert_.alg_step));
  tab_.LblT.set_caption(time);
  if (left != 0) return;
  --alert_.alg_rep;
  if (alert_.alg_rep == 0) {
    const std::string& next = step(alert_.alg_step + 1);
    if (ClampedNumber(AlgField(next, kAlgOrder)) > 0) {
      ++alert_.alg_step;
      alert_.alg_rep = plays_of(next);
    }
  }
  if (alert_.alg_rep > 0)
    play_step();
  else
    finish();
}

void AlgorithmRun::play_step() {
  const std::string& record = step(alert_.alg_step);
  switch_on(AlgField(record, kAlgZones), kLaterMarks, kLaterHeading);
  play(record);
}

void AlgorithmRun::finish() {
  tab_.Timer7.set_enabled(false);
  alert_.alg_step = 1;
  alert_.alg_rep = plays_of(step(1));
  // The inputs that were answered stay answered until a reset, and the alarm mark stays set.
  alert_.al_active = false;
  alert_.al_bank.fill(false);
  lamps_.all_idle();
  house_.give_back();
}

void AlgorithmRun::switch_on(std::string_view zones, std::string_view marks, std::string_view heading) {
  if (zones.empty()) return;
  journal_.JournalLine(heading);
  for (int k = 1; k <= kZones; ++k) {
    const std::string mark = Mid(zones, k, 1);
    if (mark.empty() || marks.find(mark) == std::string_view::npos) continue;
    lamps_.alerted(k);
    // Twice, since nobody acknowledges a frame.
    for (int i = 0; i < 2; ++i) link_.SendZoneSet(sources_.ch_computer, sources_.vol_computer, k);
    journal_.JournalLine(join("Зона - ", k));
  }
}

bool AlgorithmRun::play(std::string_view record) {
  const std::string file = AlgField(record, kAlgMessage);
  const auto length = message_.play(file);
  if (!length) return false;
  journal_.JournalLine(
      join("Сообщение:  ", file, " длина: ", *length, " повторов: ", AlgField(record, kAlgPlays)));
  return true;
}

}  // namespace evac
