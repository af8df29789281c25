// The layouts of the main window's tabs, in the order in which they stand.
#pragma once

#include "app/form1.h"
#include "desktop/view/layout.h"

namespace evac::desktop {

Node alarm_tab(Form1& form);
Node zones_tab(Form1& form);
Node terminals_tab(Form1& form);
Node player_tab(Form1& form);
Node sources_tab(Form1& form);
Node control_tab(Form1& form);
Node power_tab(Form1& form);

// The timers of which one is on while a message plays: then there is a time left.
Controls messages(AlarmTab& tab);

}  // namespace evac::desktop
