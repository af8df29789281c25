#include "supervision/clock.h"

#include "model/text.h"

namespace evac {

void Clock::start() {
  today_ = date_of(doors_.loop.wall());
}

void Clock::tick() {
  const WallTime now = doors_.loop.wall();
  if (date_of(now) != today_) {
    today_ = date_of(now);
    day_changed();
  }
  restart_test();
  doors_.strip.LblDate.set_caption(join(time_text(second_of_day(now)), "     ", long_date_text(today_)));
}

}  // namespace evac
