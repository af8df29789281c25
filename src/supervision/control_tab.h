// Tab "Контроль" of Form1: the terminal scan, its automatic repetition, and the weekly timer's lines.
#pragma once

#include "model/system_model.h"
#include "platform/controls.h"

namespace evac {

struct ControlTab {
  explicit ControlTab(Form& form) : place{form.place("ControlTab")} {}
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

  Frame Frame8{place, "Frame8", "Контроль состояния оборудования"};
  Frame Frame7_0{Frame8.inside(), "Frame7", "Контроль терминальных блоков", 0};
  Button CmdZ{Frame7_0.inside(), "CmdZ", "ВЫКЛ"};
  Button CmdArm{Frame7_0.inside(), "CmdArm", "ВЫКЛ"};
  Button CmdSb{Frame7_0.inside(), "CmdSb", "СБРОС"};
  Label Lbl_m{Frame7_0.inside(), "Lbl_m"};
  Label Label3{Frame7_0.inside(), "Label3"};
  Picture PctM{Frame7_0.inside(), "PctM", "PctD2"};

  Frame Frame7_2{Frame8.inside(), "Frame7", "Недельный таймер", 2};
  Button CmdTV{Frame7_2.inside(), "CmdTV", "ВКЛ"};
  Label LblTm{Frame7_2.inside(), "LblTm"};
  Label LblT2{Frame7_2.inside(), "LblT2"};
  Label LblTmr{Frame7_2.inside(), "LblTmr"};

  Frame Frame10{place, "Frame10", "Контроль состояния терминалов"};
  ListBox List5{Frame10.inside(), "List5"};
  Frame Frame11{place, "Frame11", "Статистика состояния терминалов"};
  ListBox List4{Frame11.inside(), "List4"};

  Timer Timer8{place, "Timer8"};
  Timer Timer9{place, "Timer9"};
  Timer Timer10{place, "Timer10"};
  Timer Timer11{place, "Timer11"};
  Timer Timer14{place, "Timer14"};
};

}  // namespace evac
