// Tab "Аварийная панель" of Form1: status lines, lamps of the zones, the manual panel.
#pragma once

#include "model/system_model.h"
#include "platform/controls.h"

namespace evac {

// The status lines among the labels LblU.
inline constexpr int kModeLine = 5, kSecondLine = 0;

struct AlarmTab {
  explicit AlarmTab(Form& form) : place{form.place("AlarmTab")} {}
  Place place;

  ControlArray<Label> LblU{place, "LblU", 0, 6, ""};  // 5 the mode or message, 0 the second line
  Label LblT{place, "LblT"};                          // time left of an alert

  Frame Frm8{place, "Frm8", "Зоны оповещения"};
  ControlArray<Picture> PctA{Frm8.inside(), "PctA", 1, kZones, picture::kNo};

  Frame Frm6{place, "Frm6", "Ручное оповещение/включение алгоритма оповещения"};
  ComboBox CmbF{Frm6.inside(), "CmbF"};
  Label LblL{Frm6.inside(), "LblL"};  // length of the manual message
  ScrollBar VS1{Frm6.inside(), "VS1", 1, 100, 1};
  Label LblKl{Frm6.inside(), "LblKl", "1"};
  Button CmdAl{Frm6.inside(), "CmdAl", "Включить сообщение"};
  Button CmdCan{Frm6.inside(), "CmdCan", "Отменить сообщение"};
  ScrollBar VSFD{Frm6.inside(), "VSFD", 1, kZones, 1};
  Label LblFD{Frm6.inside(), "LblFD", "1"};
  Button CmdDem{Frm6.inside(), "CmdDem", "FIRE"};
  Button CmdStF{Frm6.inside(), "CmdStF", "Стоп / сброс"};
  ScrollBar VSRT1{Frm6.inside(), "VSRT1", 1, 120, 1};
  ScrollBar VSRT2{Frm6.inside(), "VSRT2", 1, 120, 1};
  ScrollBar VSRT3{Frm6.inside(), "VSRT3", 1, 120, 1};
  Label LblU1{Frm6.inside(), "LblU1", "1"};
  Label LblU2{Frm6.inside(), "LblU2", "1"};
  Label LblU3{Frm6.inside(), "LblU3", "1"};

  Button CmdAG{place, "CmdAG", "ВКЛ/ВЫКЛ всех зон"};
  Button CmdTG{place, "CmdTG", "ВКЛ/ВЫКЛ выбранных зон"};
  Button CmdAlAl{place, "CmdAlAl", "ВКЛ/ВЫКЛ аварийных зон"};

  Timer Timer4{place, "Timer4", 100};
  Timer Timer5{place, "Timer5", 100};
  Timer Timer6{place, "Timer6", 100};
  Timer Timer7{place, "Timer7", 100};
};

}  // namespace evac
