#include "alert/algorithm_run.h"

#include "model/text.h"
#include "store/algorithm_record.h"

namespace evac {
namespace {

// In the first play of a first step the alarm mark switches its own zone on too; later it does not.
constexpr std::string_view kFirstPlayMarks = "17", kLaterMarks = "1";
constexpr std::string_view kLaterHeading = "Включаемые зоны:";

int plays_of(std::string_view record) {
  return Number(AlgField(record, kAlgPlays));
}

}  // namespace

bool AlgorithmRun::start(int zone, const Bank& bank) {
  const std::string& record = doors_.algorithms.AlgZoneTable[zone][1];
  if (record.empty()) {
    doors_.tab.LblU[kModeLine].set_caption(join("Алгоритм ", zone, bank.no_steps));
    return false;
  }
  doors_.alert.alg_step = 1;
  doors_.alert.alg_zone = static_cast<std::int16_t>(zone);
  doors_.alert.alg_running = true;
  doors_.alert.alg_by_contact = !doors_.alert.fire_sim;
  doors_.alert.block_zone = 0;
  const std::string zones = AlgField(record, kAlgZones);
  switch_on(zones, kFirstPlayMarks, bank.heading);
  if (zones.starts_with(kAlarmMark)) {
    doors_.link.SendAlertStart();
    doors_.alert.al_alarm_zones = true;
    doors_.journal.JournalLine("Включение аварийных зон");
  }
  doors_.lamps.fire(zone);
  doors_.alert.alg_rep = plays_of(record);
  if (play(record))
    doors_.tab.Timer7.set_enabled(true);
  else
    doors_.boxes.message(join(bank.open_error, AlgField(record, kAlgMessage)));
  doors_.house.silence();
  return true;
}

void AlgorithmRun::tick() {
  if (doors_.alert.fire_stop || doors_.alert.msg_manual) return;
  const int left = message_.left();
  const std::string time = time_left_text(left);
  doors_.tab.LblU[kModeLine].set_caption(
      join("Сообщение:  ", AlgField(step(doors_.alert.alg_step), kAlgMessage), " ", time,
           " повторов: ", doors_.alert.alg_rep));
  doors_.tab.LblU[kSecondLine].set_caption(
      join("  Зона пожара - ", doors_.alert.alg_zone, "  Запись - ", doors_.alert.alg_step));
  doors_.tab.LblT.set_caption(time);
  if (left != 0) return;
  --doors_.alert.alg_rep;
  if (doors_.alert.alg_rep == 0) {
    const std::string& next = step(doors_.alert.alg_step + 1);
    if (Number(AlgField(next, kAlgOrder)) > 0) {
      ++doors_.alert.alg_step;
      doors_.alert.alg_rep = plays_of(next);
    }
  }
  if (doors_.alert.alg_rep > 0)
    play_step();
  else
    finish();
}

void AlgorithmRun::play_step() {
  const std::string& record = step(doors_.alert.alg_step);
  switch_on(AlgField(record, kAlgZones), kLaterMarks, kLaterHeading);
  play(record);
}

void AlgorithmRun::finish() {
  doors_.tab.Timer7.set_enabled(false);
  doors_.alert.alg_step = 1;
  doors_.alert.alg_rep = plays_of(step(1));
  // The inputs that were answered stay answered until a reset, and the alarm mark stays set.
  doors_.alert.clear_active();
  doors_.alert.al_bank.fill(false);
  doors_.lamps.all_idle();
  doors_.house.give_back();
}

void AlgorithmRun::switch_on(std::string_view zones, std::string_view marks, std::string_view heading) {
  if (zones.empty()) return;
  doors_.journal.JournalLine(heading);
  for (int k = 1; k <= kZones; ++k) {
    const std::string mark = Mid(zones, k, 1);
    if (mark.empty() || marks.find(mark) == std::string_view::npos) continue;
    doors_.lamps.alerted(k);
    // Twice, since nobody acknowledges a frame.
    for (int i = 0; i < 2; ++i)
      doors_.link.SendZoneSet(doors_.sources.ch_computer, doors_.sources.vol_computer, k);
    doors_.journal.JournalLine(join("Зона - ", k));
  }
}

bool AlgorithmRun::play(std::string_view record) {
  const std::string file = AlgField(record, kAlgMessage);
  const auto length = message_.play(file);
  if (!length) return false;
  doors_.journal.JournalLine(
      join("Сообщение:  ", file, " длина: ", *length, " повторов: ", AlgField(record, kAlgPlays)));
  return true;
}

}  // namespace evac
