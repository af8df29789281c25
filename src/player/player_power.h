// The player's power, CmdPMP: an operator's switch, and the one by which an alert silences the player.
#pragma once

#include "player/play_lists.h"
#include "player/transport.h"

namespace evac {

class PlayerPower {
 public:
  struct Doors {
    PlayerState& player;
    PlayerTab& tab;
    TerminalsTab& terminals_tab;
    Transport& transport;
    TagReader& tags;
    TrackList& tracks;
    PlayLists& lists;
    Media& MP;
    Windows& windows;
  };
  explicit PlayerPower(const Doors& doors) : doors_(doors) {}

  void toggle();
  // CmdCicl2: whether the first track follows the last.
  void toggle_cycle();

 private:
  void switch_on();
  void switch_off();

  const Doors doors_;
};

}  // namespace evac
