// The settings of zones and of terminals, one shape of work: a grid of cells is loaded from a file, edited in
// a working copy of the channels, and saved to the file, the model and the main window's buttons at once.
// File errors end a load or a save silently; what was read stays.
#pragma once

#include <span>

#include "console/cell_window.h"
#include "console/channel_menu.h"
#include "console/form33.h"
#include "console/form55.h"
#include "console/zones_tab.h"
#include "platform/files.h"

namespace evac {

class CellSettings {
 public:
  // Double click on Lbl(i): on and off.
  void toggle(int i);
  // A press in Lbl(i): a right one brings up the channel menu, if the cell is on.
  void press(int i, const MousePress& press);
  // Command3, and the closing of the window: drops the working copy.
  void leave();

 protected:
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
    bool buttons_follow_file;  // not only a save, but a load too sets the buttons
  };

  CellSettings(const Cells& cells, PaintState& paint, Files& files, ChannelMenu& menu)
      : cells_(cells), paint_(paint), files_(files), menu_(menu) {}

  int count() const { return cells_.window.Lbl.last(); }
  Label& cell(int i) { return cells_.window.Lbl[i]; }
  bool is_on(int i);
  void show_on(int i);
  void show_off(int i);
  // The cell's working copy and colour are the channel's.
  void take_channel(int i, int channel);

  // Fills cells and channels in use; an empty file changes nothing. Returns the highest cell that is on, 0
  // when none was read.
  int load(const std::string& path);
  // The same number, of the cells saved.
  int save(const std::string& path);

 private:
  const Cells cells_;
  PaintState& paint_;
  Files& files_;
  ChannelMenu& menu_;
};

class ZoneSettings : public CellSettings {
 public:
  ZoneSettings(ZoneState& zones, const SettingsState& settings, PaintState& paint, Files& files,
               ChannelMenu& menu, Form33& form, ZonesTab& tab);

  void LoadZoneSettings();
  // What the cells show when the window opens: a zone without a channel is off.
  void prepare();
  // Command1.
  void save();

 private:
  const ZoneState& zones_;
  const SettingsState& settings_;
  Form33& form_;
};

class TerminalSettings : public CellSettings {
 public:
  TerminalSettings(TerminalState& terminals, const SettingsState& settings, PaintState& paint, Files& files,
                   ChannelMenu& menu, Form55& form, TerminalsTab& tab);

  // The terminals of preset n, and how many there are.
  void LoadTermSettings(int n);
  // Paints the cells by their channels and begins the working copy anew.
  void ShowTermChannels();
  void prepare();
  // Command1: the file of the current preset.
  void save();
  // VsUs: goes over to another preset, and takes the main window along.
  void choose_preset();

 private:
  TerminalState& terminals_;
  const SettingsState& settings_;
  Form55& form_;
  TerminalsTab& tab_;
};

}  // namespace evac
