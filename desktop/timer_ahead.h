// What an operator asks of the weekly timer beyond its nearest event: what comes behind it, and which rows of
// the programme never fire, with why.
#pragma once

#include <QStringList>

#include "model/system_model.h"

namespace evac::desktop {

// The next five events, from the one that the timer waits for on, then the rows that are passed over; in
// place of the events, why there are none.
QStringList timer_ahead(const TimerState& timer, WallTime now);

// "ПН ВТ": the days of a mask, in their order.
std::string days_text(int mask);

}  // namespace evac::desktop
