#include "timer/timer_engine.h"

#include "model/text.h"
#include "platform/switch_look.h"
#include "store/timer_record.h"
#include "timer/nearest_event.h"

namespace evac {
namespace {

constexpr int kPrepareSeconds = 3;  // before the event

}  // namespace

void TimerEngine::toggle() {
  TimerPanel& panel = doors_.panel;
  doors_.timer.tm_on = !doors_.timer.tm_on;
  const bool on = doors_.timer.tm_on;
  show_switch(panel.CmdTV, on);
  panel.Timer10.set_enabled(on);
  panel.LblTm.set_caption(on ? "Таймер включен" : "Таймер выключен");
  if (on) {
    doors_.timer.tm_scan = true;
    return;
  }
  panel.LblT2.set_caption("");
  panel.LblTmr.set_caption("");
}

void TimerEngine::tick() {
  TimerState& timer = doors_.timer;
  if (!timer.tm_on) return;
  const WallTime now = doors_.loop.wall();
  if (timer.tm_scan) {
    // Without a programme it is tried again at each tick, and the labels stay.
    if (timer.tm_none) return;
    search(now);
  }
  const auto day = static_cast<std::size_t>(weekday_number(timer.tm_next_d));
  doors_.panel.LblTm.set_caption(join(time_text(timer.tm_next_s), "   ", WeekDayName[day]));
  doors_.panel.LblT2.set_caption(time_text(second_of_day(now)));
  if (date_of(now) != timer.tm_next_d) return;
  const int left = timer.tm_next_s - second_of_day(now);
  if (left >= 1 && left <= kPrepareSeconds) doors_.actions.prepare(timer.next_record());
  if (left != 0) return;
  doors_.actions.carry_out(timer.next_record());
  timer.tm_scan = true;
}

void TimerEngine::search(WallTime now) {
  TimerState& timer = doors_.timer;
  const Date today = date_of(now);
  if (const auto found = NearestEvent(timer.events, weekday_number(today), second_of_day(now))) {
    timer.tm_next_i = found->index;
    timer.tm_next_s = found->second;
    timer.tm_next_d = Date(std::chrono::local_days(today) + std::chrono::days(found->days_ahead));
    show_event();
  }
  timer.tm_scan = false;
}

void TimerEngine::show_event() {
  const std::string record = doors_.timer.next_record();
  const auto field = [&record](TimerField n) { return TmField(record, n); };
  doors_.panel.LblTmr.set_caption(join(field(kTmFunction), " - ", field(kTmMessage),
                                       "\nТерминалы с: ", field(kTmFrom), " по: ", field(kTmTo)));
}

}  // namespace evac
