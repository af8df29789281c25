// FrmRez, the times of the forced restart: five slots, each with its mark and its time.
#pragma once

#include "model/system_model.h"
#include "platform/controls.h"

namespace evac {

struct FrmRez : Form {
  explicit FrmRez(Windows& windows) : Form(windows, "FrmRez", "Установка времени перезапуска компьютера") {}

  // Slot 1..5.
  ControlArray<CheckBox> Chk1{place(), "Chk1", 1, kRestartSlots, "Выберите и установите время перезапуска"};
  ControlArray<MaskedEdit> TxtTper{place(), "TxtTper", 1, kRestartSlots, "##:##:##"};
  Button CmdPrim{place(), "CmdPrim", "Применить"};
  Button CmdClose{place(), "CmdClose", "Закрыть"};
  Timer Timer1{place(), "Timer1", 100};
};

}  // namespace evac
