// A school year of the weekly timer in virtual time, all from one seed: its week, its holidays by the
// schedule, fires, passes of the scan, restarts and clocks set in between. The quiet stretches are stepped
// over, every event's surroundings and every midnight are lived through. What was due, what fired, what was
// missed and by which rule is counted against the calendar; a miss or an event that no rule explains ends it
// with status 1, and so does memory that grows.
#include <map>

#include "store/programme_files.h"
#include "store/timer_record.h"
#include "tests/soak/soak.h"

namespace evac {
namespace {

using namespace std::chrono_literals;
using std::chrono::local_days;
using std::chrono::milliseconds;

struct Event {
  int second, days;
  std::string function, message;
  std::string mark;  // by which the machine hears it
};

constexpr int kWorkdays = 31, kSaturday = 32, kEveryDay = 127;
constexpr int at(int hour, int minute = 0, int second = 0) {
  return hour * 3600 + minute * 60 + second;
}

Event bell(int second, const std::string& file, int days = kWorkdays) {
  return {second, days, "Сообщение", file, "media MP1 file \"C:\\\\ZEF_DAT\\\\message\\\\" + file};
}

const std::vector<Event> kSchool = {
    bell(at(8, 30), "b1.wav"),
    bell(at(9, 15), "b2.wav"),
    bell(at(10, 10), "b3.wav"),
    {at(10, 10, 4), kWorkdays, "Воспроизведение", "Play-list1", "media MP play"},
    bell(at(10, 20), "over_music.wav"),
    {at(10, 29, 58), kWorkdays, "Остановка", "Вкл/Выкл", ""},
    bell(at(10, 30), "b4.wav"),
    bell(at(12), "news.wav"),
    bell(at(12), "twin.wav"),
    bell(at(12, 0, 1), "behind.wav"),
    {at(13), kWorkdays, "№1CD-play", "Вкл/Выкл", "tx AA AA 06 11 00 04"},
    {at(13, 20), kWorkdays, "№1CD-stop", "Вкл/Выкл", "tx AA AA 06 11 00 05"},
    {at(14), kWorkdays, "№1FM12", "Вкл/Выкл", "tx AA AA 06 12 00 01 12"},
    {at(18), kWorkdays, "№2MP3-play", "Вкл/Выкл", "tx AA AA 06 13 01 04"},
    bell(at(10), "weekend.wav", kSaturday),
};
const std::vector<Event> kHolidays = {bell(at(12), "holidays.wav", kEveryDay)};

struct Range {
  Date from, to;
};
const Range kRanges[] = {
    {Date{local_days(std::chrono::March / 21 / 2026)}, Date{local_days(std::chrono::March / 31 / 2026)}},
    {Date{local_days(std::chrono::June / 1 / 2026)}, Date{local_days(std::chrono::August / 31 / 2026)}},
    {Date{local_days(std::chrono::December / 28 / 2026)},
     Date{local_days(std::chrono::January / 10 / 2027)}}};

class Year : Dice {
 public:
  explicit Year(unsigned seed) : Dice(seed) {
    rig_.logging = true;
    rig_.settle(controller_settings());
    rig_.settle_steps({step_record(7, 1, 1, 7)});
    rig_.sound("fire.wav", 20);
    (void)rig_.machine.files().make_folder("C:\\ZEF_DAT\\timer");
    must(rig_.machine.files().replace("C:\\ZEF\\Play-list1", "C:\\music\\march.mp3\r\n"));
    (void)rig_.machine.files().make_folder("C:\\ZEF\\PlayList");
    (void)rig_.machine.files().make_folder("C:\\music");
    must(rig_.machine.files().replace("C:\\music\\march.mp3", "sound"));
    rig_.machine.set_sound("C:\\music\\march.mp3", 7200);
    for (const auto* programme : {&kSchool, &kHolidays})
      for (const Event& event : *programme)
        if (event.message.ends_with(".wav")) rig_.sound(event.message, 5);
    write("Школа", kSchool);
    write("Каникулы", kHolidays);
    must(write_last_programme(rig_.data.folder, "Школа"));
    std::vector<std::string> entries;
    for (const Range& range : kRanges)
      entries.push_back(schedule_text("Каникулы", short_date_text(range.from), short_date_text(range.to)));
    must(write_schedule(rig_.data.folder, entries));
    rig_.machine.set_wall(local_days(std::chrono::January / 11 / 2026) + 20h);
    start();
  }

  void live() {
    step_to(next_midnight() - 5s);
    rig_.log.clear();
    listen(10s);
    const local_days today = std::chrono::floor<std::chrono::days>(wall());
    const bool holidays = is_holiday(Date(today));
    stale_ = stale_ || (holidays_ && *holidays_ != holidays);
    holidays_ = holidays;
    int disturbance = below(5) == 0 ? at(7) + below(at(12)) : kSecondsPerDay;
    int acted_at = -1;
    for (const Event& event : holidays ? kHolidays : kSchool) {
      if (!(event.days & 1 << (weekday_number(Date(today)) - 1))) continue;
      if (disturbance < event.second - 20) {
        step_to(today + std::chrono::seconds(std::exchange(disturbance, kSecondsPerDay)));
        disturb();
      }
      const WallTime due = today + std::chrono::seconds(event.second);
      const bool skipped = skipped_from_ < due && due <= skipped_to_;
      step_to(due - 5s);
      if (wall() < due + 500ms) listen(due + 500ms - wall());
      // Until the next tick the engine's wish to search tells that it has acted in this one.
      const bool acts = !skipped && timer().tm_on && timer().tm_scan;
      // A stop of a player that is off, behind a restart, leaves no other mark.
      const bool stops = event.mark.empty() && acts && !stale_;
      count(event, stops || fired(event), acts, skipped, acted_at);
      if (acts) acted_at = event.second;
    }
    step_to(today + 20h);
    if ((off_ || stuck_) && below(2) == 0) look_in();
    ++days_;
  }
  int days() const { return days_; }
  std::string told() const {
    std::string text;
    for (const auto& [what, count] : counts)
      text += join(text.empty() ? "" : ", ", static_cast<int>(count), " ", what);
    return text;
  }

 private:
  void count(const Event& event, bool fired, bool acts, bool skipped, int acted_at) {
    const bool twin = acted_at == event.second;
    const std::string what = fired              ? "fired"
                             : twin             ? "missed: the second of one second"
                             : acts && stale_   ? "missed: the other programme's record of that number"
                             : skipped && !off_ ? "missed: the clock was set over it"
                             : acted_at == event.second - 1 ? "missed: a second behind another"
                             : off_                         ? "missed: a fire had switched the timer off"
                             : stuck_ ? "missed: the timer waits for one that was missed"
                             : stale_ ? "missed: the timer waits for the other programme's"
                                      : "";
    const std::string when =
        join(short_date_text(date_of(wall())), " ", time_text(event.second), " ", event.message);
    want(!what.empty(), "missed for no reason: " + when);
    want(!fired || (!off_ && !stuck_), "fired all the same: " + when);
    ++counts["due"];
    ++counts[what];
    if (acts) stale_ = false;
  }
  bool fired(const Event& event) const {
    const std::string start = time_text(event.second) + " " + event.mark;
    return !event.mark.empty() &&
           std::ranges::any_of(rig_.log, [&](const std::string& line) { return line.starts_with(start); });
  }

  void disturb() {
    switch (below(5)) {
      case 0:
        ++counts["fires"];
        off_ = true;
        rig_.machine.set_contact(7, true);
        listen(3s);
        rig_.machine.set_contact(7, false);
        listen(30s);
        want(!timer().tm_on, "a fire leaves the timer on");
        break;
      case 1:
        ++counts["passes of the scan"];
        form().CmdSkan.click();
        break;
      case 2:
        ++counts["restarts"];
        start();
        break;
      case 3:
        ++counts["clock set forward"];
        skipped_from_ = wall();
        rig_.machine.set_wall(wall() + std::chrono::seconds(1 + below(3600)));
        // The timers keep their phase: the second in which they find themselves is seen.
        skipped_to_ = std::chrono::floor<std::chrono::seconds>(wall()) - 1ms;
        if (timer().tm_on && !timer().tm_scan && skipped_from_ < waits() && waits() <= skipped_to_)
          stuck_ = true;
        listen(2s);
        break;
      default:
        ++counts["clock set back"];
        rig_.machine.set_wall(wall() - std::chrono::seconds(1 + below(1800)));
        // What was missed lies ahead again.
        if (waits() > wall()) stuck_ = false;
        listen(2s);
    }
  }
  // An operator finds the timer off, or the watch's line of an event that is past.
  void look_in() {
    if (timer().tm_on) form().CmdTV.click();
    form().CmdTV.click();
    off_ = stuck_ = stale_ = false;
    listen(2s);
  }
  void start() {
    rig_.start();
    off_ = stuck_ = stale_ = false;
    holidays_ = is_holiday(date_of(wall()));
    listen(2s);
  }

  // Time is stepped over but for the surroundings of the event that the engine waits for.
  void step_to(WallTime goal) {
    while (true) {
      const bool on_the_way = timer().tm_on && waits() > wall() && waits() < goal;
      const WallTime stop = on_the_way ? waits() - 5s : goal;
      if (stop > wall()) {
        // In whole seconds: the ticks keep their place in the second.
        rig_.machine.set_wall(wall() + std::chrono::floor<std::chrono::seconds>(stop - wall()));
      }
      if (!on_the_way) return;
      listen(waits() + 1500ms - wall());
    }
  }
  void listen(milliseconds duration) {
    rig_.machine.sent().clear();
    rig_.machine.raised().clear();
    rig_.run(duration);
  }
  // The moment of the event that the engine waits for.
  WallTime waits() const { return local_days(timer().tm_next_d) + std::chrono::seconds(timer().tm_next_s); }
  WallTime next_midnight() const { return std::chrono::floor<std::chrono::days>(wall()) + 24h; }
  WallTime wall() const { return rig_.machine.wall(); }
  static bool is_holiday(Date day) {
    return std::ranges::any_of(kRanges,
                               [&](const Range& range) { return range.from <= day && day <= range.to; });
  }
  TimerState& timer() const { return rig_.console->model().timer; }
  Form1& form() { return rig_.console->form1(); }

  void write(const std::string& name, const std::vector<Event>& events) {
    std::vector<std::string> records;
    for (const Event& event : events)
      records.push_back(
          timer_record({std::to_string(records.size() + 1), std::to_string(event.second / 3600),
                        std::to_string(event.second / 60 % 60), std::to_string(event.second % 60),
                        std::to_string(event.days), event.message, "1", "3", event.function}));
    must(write_programme(rig_.data.folder, name, records));
  }

  mutable AlertRig rig_;
  std::optional<bool> holidays_;  // of the day before
  // A fire has switched the timer off; it waits for an event that is past; its event is the other
  // programme's.
  bool off_ = false, stuck_ = false, stale_ = false;
  WallTime skipped_from_{}, skipped_to_{};
  int days_ = 0;
  std::map<std::string, long> counts;
};

}  // namespace
}  // namespace evac

int main(int argc, char** argv) {
  return evac::soak<evac::Year>(argc, argv, 365, 11);
}
