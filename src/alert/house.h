// What an alert does to the rest of the house, by the buttons that an operator would press: it silences what
// plays and scans by itself, and in the end gives the terminals back to their preset. What was silenced comes
// on again only by the operator's hand.
#pragma once

#include "console/preset_recall.h"
#include "console/terminals_tab.h"
#include "model/system_model.h"
#include "player/player_tab.h"
#include "supervision/control_tab.h"

namespace evac {

class House {
 public:
  House(const PlayerState& player, const TimerState& timer, const SupervisionState& supervision,
        PlayerTab& player_tab, ControlTab& control_tab, TerminalsTab& terminals_tab, PresetRecall& presets)
      : player_(player),
        timer_(timer),
        supervision_(supervision),
        player_tab_(player_tab),
        control_tab_(control_tab),
        terminals_tab_(terminals_tab),
        presets_(presets) {}

  // Switches off the player, the weekly timer and automatic control, where they are on.
  void silence() {
    if (player_.mp_pow) player_tab_.CmdPMP.click();
    if (timer_.tm_on) control_tab_.CmdTV.click();
    if (supervision_.auto_mode) control_tab_.CmdZ.click();
  }

  // Recalls the preset that the console shows, picks its terminals and sends it.
  void give_back() {
    presets_.PresetLoad(terminals_tab_.VsUs.value());
    terminals_tab_.Option1.set_value(true);
    terminals_tab_.CmdU.click();
  }

 private:
  const PlayerState& player_;
  const TimerState& timer_;
  const SupervisionState& supervision_;
  PlayerTab& player_tab_;
  ControlTab& control_tab_;
  TerminalsTab& terminals_tab_;
  PresetRecall& presets_;
};

}  // namespace evac
