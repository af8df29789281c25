// Tab "mp3-плеер" of Form1: the built-in player.
#pragma once

#include "platform/controls.h"

namespace evac {

struct PlayerTab {
  explicit PlayerTab(Form& form) : place{form.place("PlayerTab")} {}
  Place place;

  Frame Frame9{place, "Frame9"};
  Button CmdPMP{Frame9.inside(), "CmdPMP", "Off"};
  Label LblUP{Frame9.inside(), "LblUP", "mp3-player"};
  Frame Frame7_1{place, "Frame7", "Информация о исполнителе", 1};

  Timer Tmr1{place, "Tmr1", 500};
  Timer Tmr2{place, "Tmr2", 1000};
};

}  // namespace evac
