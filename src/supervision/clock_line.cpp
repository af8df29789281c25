#include "supervision/clock_line.h"

#include "model/text.h"

namespace evac {

void ClockLine::tick() {
  const WallTime now = doors_.loop.wall();
  doors_.strip.LblDate.set_caption(
      join(time_text(second_of_day(now)), "     ", long_date_text(date_of(now))));
}

}  // namespace evac
