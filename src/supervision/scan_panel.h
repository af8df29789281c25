// The panel of the terminal scan on the tab "Контроль" of Form1: its switch, the grid of answers, how far it
// is.
#pragma once

#include "platform/controls.h"

namespace evac {

struct ScanPanel {
  explicit ScanPanel(Form& form) : place{form.place("ScanPanel")} {}
  Place place;

  Frame Frame15{place, "Frame15", "Опрос терминальных блоков"};
  Button CmdSkan{Frame15.inside(), "CmdSkan", "ВЫКЛ"};
  ControlArray<Button> Cd1{Frame15.inside(), "Cd1", 1, {"№", "Канал", "Громкость", "Зона", "Терминал"}};
  Grid MSF2{Frame15.inside(), "MSF2", 5};
  ControlArray<Label> Lbl_A{Frame15.inside(), "Lbl_A", 4, 1, ""};
  ProgressBar PB1{Frame15.inside(), "PB1", 10};
  ProgressBar PB2{Frame15.inside(), "PB2", 10};
  Label LbPrB{Frame15.inside(), "LbPrB"};
  Label Lbpr{Frame15.inside(), "Lbpr"};
};

}  // namespace evac
