// What the timer leaves behind it: the console's own routing, sent anew if there is one.
#pragma once

#include "console/terminals_tab.h"
#include "model/system_model.h"

namespace evac {

inline void send_own_selection(const TerminalState& terminals, TerminalsTab& tab) {
  if (terminals.sel_channel != 0 && terminals.selected_count > 0) tab.CmdU.click();
}

}  // namespace evac
