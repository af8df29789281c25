// How long all tracks of the list take together.
#pragma once

#include "player/drive_steps.h"
#include "player/list_panels.h"

namespace evac {

class ListLength {
 public:
  struct Doors {
    PlayerState& player;
    PlayerTab& tab;
    DriveSteps& steps;
    Media& MP3;
    Windows& windows;
    Boxes& boxes;
  };
  explicit ListLength(const Doors& doors) : doors_(doors) {}

  // CmdSVL: works the length out, which holds everything until it is done, or takes it off the screen.
  void toggle();
  // Off the screen, as after each change of the list.
  void clear();

 private:
  // Seconds; none when a drive or a file failed.
  std::optional<int> measure();

  const Doors doors_;
};

}  // namespace evac
