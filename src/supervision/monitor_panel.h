// The panels of the terminals' supervision on the tab "Контроль" of Form1: automatic and manual control, the
// result of the last pass, the terminals that are lost.
#pragma once

#include "platform/controls.h"

namespace evac {

struct MonitorPanel {
  explicit MonitorPanel(Form& form) : place{form.place("MonitorPanel")} {}
  Place place;

  Frame Frame8{place, "Frame8", "Контроль состояния оборудования"};
  Frame Frame7_0{Frame8.inside(), "Frame7", "Контроль терминальных блоков", 0};
  Button CmdZ{Frame7_0.inside(), "CmdZ", "ВЫКЛ"};
  Button CmdArm{Frame7_0.inside(), "CmdArm", "ВЫКЛ"};
  Button CmdSb{Frame7_0.inside(), "CmdSb", "СБРОС"};
  Label Lbl_m{Frame7_0.inside(), "Lbl_m"};
  Label Label3{Frame7_0.inside(), "Label3"};
  Picture PctM{Frame7_0.inside(), "PctM", picture::kNo};

  Frame Frame10{place, "Frame10", "Контроль состояния терминалов"};
  ListBox List5{Frame10.inside(), "List5"};
  Frame Frame11{place, "Frame11", "Статистика состояния терминалов"};
  ListBox List4{Frame11.inside(), "List4"};

  Timer Timer8{place, "Timer8", 1000};
  Timer Timer9{place, "Timer9", 1000};
  Timer Timer14{place, "Timer14", 1000};
};

}  // namespace evac
