#include "timer/programmes.h"

#include <algorithm>
#include <limits>

#include "model/text.h"
#include "store/programme_files.h"
#include "store/timer_record.h"

namespace evac {
namespace {

constexpr int kHours = 24, kSixty = 60;

// A number in a field, of a damaged record too.
int number(const std::string& record, TimerField field, int most) {
  return std::clamp(Number(TmField(record, field)), 0, most);
}

ProgrammeEvent event_of(const std::string& record) {
  return {record,
          number(record, kTmHours, kHours - 1) * 3600 + number(record, kTmMinutes, kSixty - 1) * kSixty +
              number(record, kTmSeconds, kSixty - 1),
          static_cast<std::int16_t>(number(record, kTmDays, std::numeric_limits<std::int16_t>::max()))};
}

}  // namespace

void Programmes::load_day() {
  SchLoad();
  SchToday();
  ProgStart();
}

void Programmes::new_day() {
  doors_.timer.events.clear();
  load_day();
}

void Programmes::ProgLoad(std::string_view name) {
  TimerState& timer = doors_.timer;
  timer.events.clear();
  timer.tm_none = !has_programme(doors_.folder, name);
  timer.prog_asked = name;
  if (timer.tm_none) return doors_.boxes.message(join("Программа ", name, " - не найдена"));
  std::vector<std::string> records;
  // Silent: what could be read is what holds.
  (void)read_programme(doors_.folder, name, records);
  for (const std::string& record : records) timer.events.push_back(event_of(record));
}

void Programmes::ProgStart() {
  TimerState& timer = doors_.timer;
  const std::string last = read_last_programme(doors_.folder);
  if (last.empty()) return;
  timer.prog_last = last;
  ProgLoad(std::string(timer.prog_today.empty() ? timer.prog_last : timer.prog_today));
}

void Programmes::save(std::string_view name, const std::vector<std::string>& rows) {
  TimerState& timer = doors_.timer;
  if (name.empty()) return doors_.boxes.message("Не указано имя программы");
  if (write_last_programme(doors_.folder, name) != kNoError) return;
  timer.tm_next_i = 0;
  if (write_programme(doors_.folder, name, rows) != kNoError) return;
  timer.events.clear();
  for (const std::string& row : rows) {
    ProgrammeEvent& event = timer.events.emplace_back(event_of(row));
    // Until the next load an event in the first minute of the day stands at its very beginning.
    if (event.tm_time < kSixty) event.tm_time = 0;
  }
  timer.tm_scan = true;
}

void Programmes::save_schedule(const std::vector<std::string>& rows) {
  doors_.timer.schedule.clear();
  for (const std::string& row : rows) doors_.timer.schedule.push_back(schedule_entry(row));
  // Silent, as all of the timer's files.
  (void)write_schedule(doors_.folder, rows);
}

void Programmes::SchLoad() {
  doors_.timer.schedule.clear();
  doors_.entries.clear();
  for (const std::string& text : read_schedule(doors_.folder)) {
    doors_.timer.schedule.push_back(schedule_entry(text));
    if (!text.empty()) doors_.entries.add(text);
  }
}

void Programmes::SchToday() {
  using std::chrono::local_days;
  const local_days today(date_of(doors_.loop.wall()));
  doors_.timer.prog_today.clear();
  // How many days ago each date was; an entry without one goes by that of the entry before it.
  std::chrono::days since_from{0}, since_to{0};
  for (const ScheduleEntry& entry : doors_.timer.schedule) {
    const auto take = [today](const std::string& text, std::chrono::days& since) {
      if (text.empty()) return true;
      const auto date = short_date(text);
      if (date) since = today - local_days(*date);
      return date.has_value();
    };
    const bool readable = take(entry.sch_from, since_from) && take(entry.sch_to, since_to);
    if (readable && since_from.count() >= 0 && since_to.count() <= 0)
      doors_.timer.prog_today = entry.sch_name;
  }
}

}  // namespace evac
