// What a programme will do and what it never will, for whoever looks at its rows. The engine searches a
// second behind each event: what is due in the event's second or in the next one is passed over.
#pragma once

#include <span>
#include <vector>

#include "timer/nearest_event.h"

namespace evac {

// The events that come next, at most `most`, if a search is made in `second` of day `weekday`; days count
// from that day. They end early where the engine goes on waiting for an event that is past.
std::vector<Nearest> NextEvents(std::span<const ProgrammeEvent> events, int weekday, int second, int most);

// On which of its days, by bit, a row is passed over week after week: for another row of the same second, or
// for one that is a second before it.
struct PassedOver {
  std::int16_t same_second = 0, second_behind = 0;
  bool operator==(const PassedOver&) const = default;
};

struct WeekAhead {
  std::vector<PassedOver> rows;  // by record, from 0
  // All events are of one weekday: behind the last of them nothing comes any more until a new search.
  bool comes_once = false;
};
WeekAhead week_ahead(std::span<const ProgrammeEvent> events);

}  // namespace evac
