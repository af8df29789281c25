// The panel of the weekly timer on the tab "Контроль" of Form1.
#pragma once

#include "platform/controls.h"
#include "platform/switch_look.h"

namespace evac {

struct TimerPanel {
  // Stands in the frame of the equipment's supervision.
  TimerPanel(Form& form, const Frame& around)
      : place{form.place("TimerPanel")}, Frame7_2{place.in(around), "Frame7", "Недельный таймер", 2} {
    show_switch(CmdTV, true);
  }
  Place place;

  Frame Frame7_2;
  Button CmdTV{Frame7_2.inside(), "CmdTV"};
  Label LblTm{Frame7_2.inside(), "LblTm"};    // when the nearest event is due
  Label LblT2{Frame7_2.inside(), "LblT2"};    // the time
  Label LblTmr{Frame7_2.inside(), "LblTmr"};  // what the nearest event does

  Timer Timer10{place, "Timer10", 1000};
  Timer Timer11{place, "Timer11", 1000};
};

}  // namespace evac
