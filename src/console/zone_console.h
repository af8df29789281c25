// The zone rows of the tab "Зоны". A row's captions are its working state. The controller is told of a row's
// channel and volume only when the zone is switched on; no frame switches a single zone off.
#pragma once

#include "console/channel_colors.h"
#include "console/zones_tab.h"
#include "link/link.h"

namespace evac {

class ZoneConsole {
 public:
  struct Doors {
    ZoneState& zones;
    PaintState& paint;
    ZonesTab& tab;
    const ControlArray<Label>& volumes;  // the captions of the channels' sliders
    Link& link;
  };
  explicit ZoneConsole(const Doors& doors) : doors_(doors) {}

  // The rows at start.
  void PaintZoneChannels();
  void InitZoneRows();

  // CmdAZ(z).
  void toggle(int z);
  // CmdCh(z): 1 to 5 and round again; a right press goes the other way.
  void next_channel(int z);
  void previous_channel(int z, const MousePress& press);
  // CmdVol(z): 1 to 32 and round again.
  void next_volume(int z);
  void previous_volume(int z, const MousePress& press);
  // CmdAllZ: every zone that has a channel goes out on it, at the slider's volume. No toggle.
  void send_all();
  // CmdGr2 and CmdGrK: each row takes its channel's volume from these labels.
  void take_volumes(const ControlArray<Label>& volumes);
  // The row with that channel, and its switch in the channel's colour.
  void show_channel(int z, int channel);

 private:
  const Doors doors_;
};

}  // namespace evac
