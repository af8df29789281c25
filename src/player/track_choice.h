// Going to a track by hand: by its row, or by its number.
#pragma once

#include "player/transport.h"

namespace evac {

class TrackChoice {
 public:
  struct Doors {
    PlayerState& player;
    PlayerTab& tab;
    Transport& transport;
    Boxes& boxes;
  };
  explicit TrackChoice(const Doors& doors) : doors_(doors) {}

  // A row of LstPtreckMP: takes its track; twice: plays it.
  void pick();
  void play_picked();
  // A right press of CmdListMP asks for a number, the next one goes to it.
  void jump(MousePress press);
  // TxtNzMp takes digits alone.
  void filter_key(std::string& key) const;

 private:
  const Doors doors_;
};

}  // namespace evac
