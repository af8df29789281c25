#include "supervision/zone_readback.h"

namespace evac {

void ZoneReadback::read() {
  if (doors_.supervision.ScanRunning) return;
  doors_.scan_panel.CmdSkan.click();
  doors_.scan.when_over([this] { show(); });
}

void ZoneReadback::show() {
  for (int z = 1; z <= kZones; ++z) {
    doors_.tab.CmdCh[z].set_back_color(kMainBackground);
    const int channel = doors_.zones.ZoneChanScan[z], volume = doors_.zones.ZoneVolScan[z];
    if (channel < 1 && volume < 1) continue;
    doors_.rows.show_channel(z, channel);
    doors_.tab.CmdVol[z].set_caption(std::to_string(volume));
  }
}

}  // namespace evac
