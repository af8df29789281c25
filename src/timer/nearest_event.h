// Which event of a weekly programme comes next. The week is counted in seconds from Monday 0:00:00.
#pragma once

#include <optional>
#include <span>

#include "model/system_model.h"

namespace evac {

inline constexpr int kSecondsPerWeek = 7 * kSecondsPerDay;

struct Nearest {
  int index;       // of its record, from 0
  int days_ahead;  // 0 today
  int second;      // of that day
  bool operator==(const Nearest&) const = default;
};

// The event that comes first behind `second` of day `weekday`, 1 Monday to 7 Sunday, the next week included.
// Of several at one moment it is the first record's. An event of this very second is passed over, this week's
// and the next's. One that comes round again only in a week, today's weekday, is given as today's: its second
// is past, and it stands there until a search is made on another day.
std::optional<Nearest> NearestEvent(std::span<const ProgrammeEvent> events, int weekday, int second);

}  // namespace evac
