// The tracks and the saved lists: they share one place, so that showing one hides the other.
#pragma once

#include "model/system_model.h"
#include "player/player_tab.h"

namespace evac {

class ListPanels {
 public:
  struct Doors {
    PlayerState& player;
    PlayerTab& tab;
  };
  explicit ListPanels(const Doors& doors) : doors_(doors) {}

  // CmdListMP and CmdLpl: each shows its list or hides it.
  void toggle_tracks();
  void toggle_lists();

 private:
  const Doors doors_;
};

// How a button of the player shows that its panel or mode is on.
inline Color mode_color(bool on) {
  return on ? Color::kModeOn : Color::kButtonFace;
}

}  // namespace evac
