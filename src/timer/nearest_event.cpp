#include "timer/nearest_event.h"

#include "store/timer_record.h"

namespace evac {

std::optional<Nearest> NearestEvent(std::span<const ProgrammeEvent> events, int weekday, int second) {
  std::optional<Nearest> nearest;
  int best = kSecondsPerWeek + 1;
  const int now = (weekday - 1) * kSecondsPerDay + second;
  int index = 0;
  for (const ProgrammeEvent& event : events) {
    for (int day = 1; day <= kDaysOfWeek; ++day) {
      if (!(event.tm_days & 1 << (day - 1))) continue;
      const int candidate = (day - 1) * kSecondsPerDay + event.tm_time;
      const bool next_week = candidate < now;
      const int wait = candidate - now + (next_week ? kSecondsPerWeek : 0);
      if (candidate == now || wait >= best) continue;
      best = wait;
      const int days = day - weekday;
      nearest = {index, next_week && days != 0 ? days + kDaysOfWeek : days, event.tm_time};
    }
    ++index;
  }
  return nearest;
}

}  // namespace evac
