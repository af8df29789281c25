// Where the tracks come from: the folder PlayList, or a saved list in the program folder.
#pragma once

#include "player/list_length.h"
#include "player/track_list.h"

namespace evac {

class PlayLists {
 public:
  struct Doors {
    PlayerState& player;
    PlayerTab& tab;
    TrackList& tracks;
    ListLength& length;
    const SettingsState& settings;
    Files& files;
    Boxes& boxes;
  };
  explicit PlayLists(const Doors& doors) : doors_(doors) {}

  // Fills the list from the folder PlayList, which is made if the operator wants it; false when not, and the
  // player is switched off again.
  bool PlayerInit();
  // Shows the saved lists, and finds the number of the next one.
  void ListRefresh();
  // Fills the list from a saved one of that name. The rows must have been cleared before.
  void LoadPlayList(std::string_view name);

  // CmdCrpl: saves the list under the next number, which is one that exists once there are ten.
  void save();
  // A double click on LstPll.
  void load_chosen();
  // A right press of it: deletes the file.
  void delete_chosen(MousePress press);
  // CmdCln: back to the folder PlayList.
  void clean();

 private:
  enum class Folder { kThere, kRefused, kFailed };
  struct FolderTexts;
  Folder find_folder(const FolderTexts& texts);
  void fill_from_folder();
  std::string list_path(std::string_view name) const;

  const Doors doors_;
};

}  // namespace evac
