// The volume of the player: the two keys, and what sets it from elsewhere.
#pragma once

#include "model/system_model.h"
#include "platform/machine.h"
#include "player/player_tab.h"

namespace evac {

class Volume {
 public:
  struct Doors {
    PlayerState& player;
    PlayerTab& tab;
    Media& MP;
  };
  explicit Volume(const Doors& doors) : doors_(doors) {}

  // CmdUpMP and CmdDownMP: a step of 0.5, which is 5 %, kept as the operator's own level.
  void up();
  void down();

  // Gives the player this level, 0..10; the operator's own stays.
  void set_level(float level);
  // Shows "50 %".
  void show_percent(int percent);

 private:
  void step(int direction, float end);
  const Doors doors_;
};

}  // namespace evac
