// CmdSch: reads the state of the terminals by a scan, and shows on the zone rows what they reported.
#pragma once

#include "console/zone_console.h"
#include "supervision/scan_panel.h"
#include "supervision/terminal_scan.h"

namespace evac {

class ZoneReadback {
 public:
  struct Doors {
    const SupervisionState& supervision;
    const ZoneState& zones;
    ZonesTab& tab;
    ZoneConsole& rows;
    ScanPanel& scan_panel;
    TerminalScan& scan;
  };
  explicit ZoneReadback(const Doors& doors) : doors_(doors) {}

  // Shows it when the scan is over. Nothing while one runs.
  void read();

 private:
  void show();

  const Doors doors_;
};

}  // namespace evac
