// The zone rows of the tab "Зоны", and the two group buttons of the alarm panel. A row's captions are its
// working state. The controller is told of a row's channel and volume only when the zone is switched on; no
// frame switches a single zone off.
#pragma once

#include "alert/zone_lamps.h"
#include "console/channel_colors.h"
#include "console/zones_tab.h"
#include "link/link.h"
#include "platform/machine.h"

namespace evac {

class ZoneConsole {
 public:
  // `volumes`: the captions of the channels' sliders.
  ZoneConsole(ZoneState& zones, const SourceState& sources, const SettingsState& settings, PaintState& paint,
              ZonesTab& tab, AlarmTab& alarm_tab, ZoneLamps& lamps, const ControlArray<Label>& volumes,
              Link& link, Boxes& boxes)
      : zones_(zones),
        sources_(sources),
        settings_(settings),
        paint_(paint),
        tab_(tab),
        alarm_tab_(alarm_tab),
        lamps_(lamps),
        volumes_(volumes),
        link_(link),
        boxes_(boxes) {}

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
  // CmdAG: all zones that have a channel get the computer's, or everything is stopped.
  void toggle_all();
  // CmdTG: the same for the zones on the computer's channel.
  void toggle_chosen();

 private:
  void show_channel(int z, int channel);
  bool computer_ready();
  template <class Chosen>
  void toggle_group(bool& on, Button& button, Chosen chosen);

  ZoneState& zones_;
  const SourceState& sources_;
  const SettingsState& settings_;
  PaintState& paint_;
  ZonesTab& tab_;
  AlarmTab& alarm_tab_;
  ZoneLamps& lamps_;
  const ControlArray<Label>& volumes_;
  Link& link_;
  Boxes& boxes_;
};

}  // namespace evac
