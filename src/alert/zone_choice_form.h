// Form7: the zones of a step.
#pragma once

#include "model/system_model.h"
#include "platform/controls.h"

namespace evac {

struct Form7 : Form {
  explicit Form7(Windows& windows) : Form(windows, "Form7", "Включение зон") {}
  Place at = place();

  Frame Frame1{at, "Frame1", "Выбор зон"};
  // From index 0 for zone 1. The box of zone 102 bears its neighbour's caption, so that "101" stands twice;
  // this is to stay.
  ControlArray<CheckBox> Chk{0, kZones, [this](auto& items, int i) {
                               const int caption = i + 1 == kMiscaptioned ? kMiscaptioned - 1 : i + 1;
                               items.emplace_back(Frame1.inside(), "Chk", std::to_string(caption), i);
                             }};
  CheckBox ChkAll{at, "ChkAll", "Вкл аварийного канала"};
  Button CmdSave{at, "CmdSave", "Сохранить"};
  Button Command2{at, "Command2", "Выход"};

 private:
  static constexpr int kMiscaptioned = 102;
};

}  // namespace evac
