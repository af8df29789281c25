#include "timer/week_ahead.h"

#include <algorithm>

#include "store/timer_record.h"

namespace evac {

std::vector<Nearest> NextEvents(std::span<const ProgrammeEvent> events, int weekday, int second, int most) {
  std::vector<Nearest> next;
  int days = 0;
  while (static_cast<int>(next.size()) < most) {
    auto found = NearestEvent(events, weekday, second);
    const bool past = found && found->days_ahead == 0 && found->second <= second;
    if (!found || past) break;
    days += found->days_ahead;
    weekday = (weekday - 1 + found->days_ahead) % kDaysOfWeek + 1;
    second = found->second + 1;
    found->days_ahead = days;
    next.push_back(*found);
    if (second < kSecondsPerDay) continue;
    second = 0;
    weekday = weekday % kDaysOfWeek + 1;
    ++days;
  }
  return next;
}

WeekAhead week_ahead(std::span<const ProgrammeEvent> events) {
  struct Turn {
    int moment, index, day;
  };
  std::vector<Turn> turns;
  for (std::size_t i = 0; i < events.size(); ++i)
    for (int day = 1; day <= kDaysOfWeek; ++day)
      if (events[i].tm_days & 1 << (day - 1))
        turns.push_back({(day - 1) * kSecondsPerDay + events[i].tm_time, static_cast<int>(i), day});
  std::ranges::stable_sort(turns, {}, &Turn::moment);

  WeekAhead ahead{std::vector<PassedOver>(events.size())};
  ahead.comes_once = !turns.empty() && turns.front().day == turns.back().day;
  // Twice round the week: its first seconds go by how the week before ended.
  int last = -kSecondsPerDay;
  for (const bool settled : {false, true}) {
    for (const Turn& turn : turns) {
      const int behind = turn.moment - last;
      if (behind > 1) last = turn.moment;
      if (behind > 1 || !settled) continue;
      PassedOver& row = ahead.rows[static_cast<std::size_t>(turn.index)];
      auto& days = behind == 0 ? row.same_second : row.second_behind;
      days = static_cast<std::int16_t>(days | 1 << (turn.day - 1));
    }
    last -= kSecondsPerWeek;
  }
  return ahead;
}

}  // namespace evac
