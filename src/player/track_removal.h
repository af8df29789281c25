// Deleting a track by a right press on its row: from the list, from the saved list that is loaded, and, if it
// lies in the folder PlayList, from the disk.
#pragma once

#include "player/play_lists.h"

namespace evac {

class TrackRemoval {
 public:
  struct Doors {
    PlayerState& player;
    PlayerTab& tab;
    TrackList& tracks;
    PlayLists& lists;
    const SettingsState& settings;
    Files& files;
    Boxes& boxes;
  };
  explicit TrackRemoval(const Doors& doors) : doors_(doors) {}

  // Ends where a file operation fails, with what was done until then.
  void remove_chosen(MousePress press);

 private:
  bool rewrite_list();
  // Told by the text of the path: so does a file of any folder whose path begins with that of PlayList.
  bool lies_in_play_list(std::string_view path) const;
  std::string base_path(std::string_view name) const;

  const Doors doors_;
};

}  // namespace evac
