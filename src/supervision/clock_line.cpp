#include "supervision/clock_line.h"

#include "journal/journal.h"
#include "model/text.h"

namespace evac {

void ClockLine::tick() {
  const WallTime now = loop_.wall();
  strip_.LblDate.set_caption(
      join(time_text(second_of_day(now)), "     ", long_date_text(calendar_, date_of(now))));
}

}  // namespace evac
