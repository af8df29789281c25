// The panel for adding tracks: drives, folders, and the audio files of the folder.
#pragma once

#include "player/list_length.h"
#include "player/track_list.h"

namespace evac {

class AddPanel {
 public:
  struct Doors {
    PlayerState& player;
    PlayerTab& tab;
    TrackList& tracks;
    DriveSteps& steps;
    ListLength& length;
    Boxes& boxes;
  };
  explicit AddPanel(const Doors& doors) : doors_(doors) {}

  // CmdAddPl: opens the panel at C:\, or closes it.
  void toggle();
  // Drive1 and Dir2 have changed.
  void drive_changed();
  void folder_changed();
  // LstAddList: the chosen file, or by the right button all of them, become tracks.
  void add_chosen();
  void add_all(MousePress press);

 private:
  void added(const std::vector<std::string>& files);

  const Doors doors_;
};

}  // namespace evac
