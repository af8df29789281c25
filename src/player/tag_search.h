// The search of the list for a text in the path and the tag of each track. It holds everything until it is
// done, but for its boxes.
#pragma once

#include "player/transport.h"

namespace evac {

class TagSearch {
 public:
  struct Doors {
    PlayerState& player;
    PlayerTab& tab;
    DriveSteps& steps;
    Transport& transport;
    Media& MP;
    Media& MP3;
    Windows& windows;
    Files& files;
    Boxes& boxes;
  };
  explicit TagSearch(const Doors& doors) : doors_(doors) {}

  // CmdSeek: opens the panel, or closes it.
  void toggle();
  // TxtSeek has changed.
  void text_changed();
  // CmdSeekOk.
  void run();

 private:
  enum class Walk { kGoesOn, kFailed, kEndedByOperator };
  Walk look_at(int number, std::string_view text);
  void show_panel(bool on);

  const Doors doors_;
};

}  // namespace evac
