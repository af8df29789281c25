#include "desktop/timer_ahead.h"

#include "desktop/view/screen.h"
#include "model/text.h"
#include "store/timer_record.h"
#include "timer/week_ahead.h"

namespace evac::desktop {
namespace {

using std::chrono::days;
using std::chrono::local_days;
using std::chrono::seconds;

constexpr int kNext = 5;  // events
constexpr std::string_view kDayNames[kDaysOfWeek] = {"ПН", "ВТ", "СР", "ЧТ", "ПТ", "СБ", "ВС"};

// What the row does, to what, and where.
std::string deed(std::string_view record) {
  const std::string function = TmField(record, kTmFunction), message = TmField(record, kTmMessage);
  std::string text = function.starts_with(timer_function::kMessage)  ? message
                     : message == kNoTimerMessage || message.empty() ? function
                                                                     : join(function, " ", message);
  const bool routes = function != timer_function::kStop && !function.ends_with("-stop") &&
                      function.find(timer_function::kPreset) == std::string::npos;
  if (!routes) return text;
  const std::string from = TmField(record, kTmFrom), to = TmField(record, kTmTo);
  return text + (from == to ? join(", терминал ", from) : join(", терминалы ", from, "–", to));
}

std::string day_text(Date date, Date today) {
  const auto ahead = local_days(date) - local_days(today);
  if (ahead == days(0)) return "Сегодня";
  if (ahead == days(1)) return "Завтра";
  return join(kDayNames[weekday_number(date) - 1], " ", short_date_text(date).substr(0, 5));
}

class Ahead {
 public:
  Ahead(const TimerState& timer, WallTime now) : timer_(timer), now_(now) {}

  QStringList lines() {
    if (!timer_.tm_on)
      tell("Таймер выключен: до включения ничего не сработает");
    else if (timer_.tm_none)
      tell(join("Программа «", timer_.prog_asked, "» не найдена"));
    else
      tell_events();
    if (!timer_.tm_none) tell_passed_over();
    return lines_;
  }

 private:
  void tell(std::string_view line) { lines_ << qt(line); }
  void tell_event(Date date, int second, std::string_view record) {
    tell(join(day_text(date, date_of(now_)), " ", time_text(second), "  ",
              record.empty() ? "записи нет" : deed(record)));
  }

  void tell_events() {
    WallTime searched = now_;  // when the search is made that finds what follows
    int most = kNext;
    const bool found = timer_.tm_next_d != TimerState().tm_next_d;
    if (found && !timer_.tm_scan) {
      const WallTime due = local_days(timer_.tm_next_d) + seconds(timer_.tm_next_s);
      if (due + seconds(1) <= now_) {
        tell(join("Событие ", day_text(timer_.tm_next_d, date_of(now_)), " ", time_text(timer_.tm_next_s),
                  " прошло: таймер ждёт его и дальше; выключите и включите таймер"));
        return;
      }
      tell_event(timer_.tm_next_d, timer_.tm_next_s, timer_.next_record());
      searched = due + seconds(1);
      --most;
    }
    const Date from = date_of(searched);
    for (const Nearest& next : NextEvents(timer_.events, weekday_number(from), second_of_day(searched), most))
      tell_event(Date(local_days(from) + days(next.days_ahead)), next.second,
                 timer_.events[static_cast<std::size_t>(next.index)].tm_rec);
    if (lines_.isEmpty()) tell("В программе нет событий");
  }

  void tell_passed_over() {
    const WeekAhead week = week_ahead(timer_.events);
    for (std::size_t i = 0; i < timer_.events.size(); ++i) {
      const ProgrammeEvent& event = timer_.events[i];
      if (event.tm_rec.empty()) continue;
      const std::string row = join("✕ Запись ", i + 1, ", ", time_text(event.tm_time));
      if (days_text(event.tm_days).empty()) tell(join(row, ": никогда, нет дней недели"));
      const auto passed = [&](int mask, std::string_view why) {
        if (mask == 0) return;
        const std::string when =
            days_text(mask) == days_text(event.tm_days) ? "никогда" : "не сработает " + days_text(mask);
        tell(join(row, ": ", when, ", ", why));
      };
      passed(week.rows[i].same_second, "в эту секунду уже есть событие");
      passed(week.rows[i].second_behind, "за секунду до неё другое событие");
    }
    if (week.comes_once)
      tell("✕ Все события в один день: после последнего таймер ждёт, пока его не выключат и не включат");
  }

  const TimerState& timer_;
  const WallTime now_;
  QStringList lines_;
};

}  // namespace

std::string days_text(int mask) {
  std::string text;
  for (int n = 0; n < kDaysOfWeek; ++n)
    if (mask & 1 << n) text += join(text.empty() ? "" : " ", kDayNames[n]);
  return text;
}

QStringList timer_ahead(const TimerState& timer, WallTime now) {
  return Ahead(timer, now).lines();
}

}  // namespace evac::desktop
