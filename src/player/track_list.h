// The list that the player works through, and the rows that show it: whatever changes one changes the other.
#pragma once

#include "model/system_model.h"
#include "platform/controls.h"

namespace evac {

class TrackList {
 public:
  struct Doors {
    PlayerState& player;
    ListBox& rows;
  };
  explicit TrackList(const Doors& doors) : doors_(doors) {}

  // These paths become the list; their rows, numbered from 1 with `gap` behind the number, come behind the
  // rows that there are.
  void fill(std::vector<std::string> paths, std::string_view gap);
  // More tracks at the end.
  void add(const std::vector<std::string>& paths);
  // Takes out every track with that path and numbers the rest anew. The list gets shorter by one all the
  // same: where it had more of them it ends in empty tracks, which have no rows.
  void remove(const std::string& path);
  // No track and no row.
  void erase();
  // Marks the row of the current track, if there are so many rows.
  void mark_current();

 private:
  const Doors doors_;
};

// Between the number and the path of a row; a loaded list has one blank, others two.
inline constexpr std::string_view kGap = "  ", kLoadedGap = " ";

}  // namespace evac
