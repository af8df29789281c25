// What an alert does to the rest of the house, by the buttons that an operator would press: it silences what
// plays and scans by itself, and in the end gives the terminals back to their preset. What was silenced comes
// on again only by the operator's hand.
#pragma once

#include "console/preset_recall.h"
#include "console/terminals_tab.h"
#include "model/system_model.h"
#include "player/player_tab.h"
#include "supervision/monitor_panel.h"
#include "timer/timer_panel.h"

namespace evac {

class House {
 public:
  struct Doors {
    AlertState& alert;
    const PlayerState& player;
    const TimerState& timer;
    const SupervisionState& supervision;
    PlayerTab& player_tab;
    TimerPanel& timer_panel;
    MonitorPanel& monitor_panel;
    TerminalsTab& terminals_tab;
    PresetRecall& presets;
  };
  explicit House(const Doors& doors) : doors_(doors) {}

  // Switches off the player, the weekly timer and automatic control, where they are on.
  void silence() {
    press(doors_.player.mp_pow, doors_.player_tab.CmdPMP, doors_.alert.player_silenced);
    press(doors_.timer.tm_on, doors_.timer_panel.CmdTV, doors_.alert.timer_silenced);
    press(doors_.supervision.auto_mode, doors_.monitor_panel.CmdZ, doors_.alert.control_silenced);
  }

  // Recalls the preset that the console shows, picks its terminals and sends it.
  void give_back() {
    doors_.presets.PresetLoad(doors_.terminals_tab.VsUs.value());
    doors_.terminals_tab.Option1.set_value(true);
    doors_.terminals_tab.CmdU.click();
  }

 private:
  static void press(bool on, Button& button, int& silenced) {
    if (!on) return;
    button.click();
    ++silenced;
  }

  const Doors doors_;
};

}  // namespace evac
