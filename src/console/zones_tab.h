// Tab "Зоны" of Form1: a row of switch, channel and volume for each zone. The captions are the working state.
#pragma once

#include "model/system_model.h"
#include "platform/controls.h"

namespace evac {

struct ZonesTab {
  explicit ZonesTab(Form& form) : place{form.place("ZonesTab")} {}
  Place place;

  Frame Frame13{place, "Frame13", "Включение зон/Уровня громкости/Номера звукового канала"};
  ControlArray<Button> CmdAZ{Frame13.inside(), "CmdAZ", 1, kZones, ""};
  ControlArray<Button> CmdCh{Frame13.inside(), "CmdCh", 1, kZones, "1"};
  ControlArray<Button> CmdVol{Frame13.inside(), "CmdVol", 1, kZones, "32"};
  Button CmdAllZ{Frame13.inside(), "CmdAllZ", "Включение всех зон"};
  Button CmdSch{Frame13.inside(), "CmdSch", "Считать состояние терминалов"};
  Button CmdGr2{Frame13.inside(), "CmdGr2", "Громкость каналов установленная"};
  Button CmdGrK{Frame13.inside(), "CmdGrK", "Громкость каналов по умолчанию"};
};

}  // namespace evac
