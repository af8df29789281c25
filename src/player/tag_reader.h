// The tag of the current track on the screen.
#pragma once

#include "player/drive_steps.h"
#include "store/track_tag.h"

namespace evac {

class TagReader {
 public:
  struct Doors {
    PlayerState& player;
    PlayerTab& tab;
    DriveSteps& steps;
    Files& files;
  };
  explicit TagReader(const Doors& doors) : doors_(doors) {}

  // Shows path and tag of the current track's file. A drive or a file that fails stops the player; a file
  // that cannot be read, or is shorter than a tag, leaves the labels as they are.
  void ReadTag();
  // Nothing is shown.
  void clear();

 private:
  const Doors doors_;
};

}  // namespace evac
