// The settings of zones and of terminals, one shape of work: a grid of cells is loaded from a file, edited in
// a working copy of the channels, and saved to the file, the model and the main window's buttons at once.
// File errors end a load or a save silently; what was read stays.
#pragma once

#include <span>

#include "console/cell_window.h"
#include "store/data_folder.h"

namespace evac {

class CellSettings {
 public:
  // Double click on Lbl(i): on and off.
  void toggle(int i);
  // A press in Lbl(i): a right one brings up the channel menu, if the cell is on.
  void press(int i, const MousePress& press);
  // ch(c): the cell of the menu goes on channel c.
  void choose_channel(int channel);
  // Command3, and the closing of the window: drops the working copy.
  void leave();

 protected:
  // Values of a working copy that are no channel.
  static constexpr std::int16_t kNotSet = 0, kSwitchedOff = 255;

  // Channels of the model, by number from 1.
  struct Channels {
    std::span<std::int16_t> items;
    std::int16_t& operator[](int i) const { return items[static_cast<std::size_t>(i - 1)]; }
  };
  struct Cells {
    CellWindow& window;
    Channels used;     // what the rest of the system reads; 0 none
    Channels working;  // while the window is open: 0 not set, 255 switched off
    ControlArray<Button>& buttons;
    ZoneBits* in_use;          // kept as last loaded or saved; null for none
    bool buttons_follow_file;  // not only a save, but a load too sets the buttons
  };

  CellSettings(const Cells& cells, PaintState& paint, DataFolder& folder)
      : cells_(cells), paint_(paint), folder_(folder) {}

  int count() const { return cells_.window.Lbl.last(); }
  Label& cell(int i) { return cells_.window.Lbl[i]; }
  bool is_on(int i);
  void show_on(int i);
  void show_off(int i);
  // The cell's working copy and colour are the channel's.
  void take_channel(int i, int channel);

  // Fills cells and channels in use; an empty file changes nothing. Returns the highest cell that is on, 0
  // when none was read.
  int load(std::string_view file);
  // The same number, of the cells saved.
  int save(std::string_view file);

 private:
  const Cells cells_;
  PaintState& paint_;
  DataFolder& folder_;
  int menu_cell_ = 0;  // that the menu came up for; 0 before the first time
};

}  // namespace evac
