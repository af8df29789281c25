// The supervision of the terminals: automatic, a scan each period, or manual, a scan at once; and the alarm
// of a terminal that is lost. The two modes exclude each other. A mode that ends in a scan leaves the scan to
// finish.
#pragma once

#include "model/system_model.h"
#include "platform/machine.h"
#include "supervision/monitor_panel.h"
#include "supervision/scan_panel.h"
#include "supervision/scan_report.h"
#include "supervision/terminal_scan.h"

namespace evac {

class AutoControl {
 public:
  struct Doors {
    SupervisionState& supervision;
    const SettingsState& settings;
    MonitorPanel& panel;
    ScanPanel& scan_panel;
    TerminalScan& scan;
    ScanReport& report;
    Tone& tone;
    const EventLoop& loop;
  };
  explicit AutoControl(const Doors& doors) : doors_(doors) {}

  // By the settings, at start.
  void start();
  // After a change of the settings: CmdZ looks as `auto_mode` stands, and the next scan is a period from now.
  void show_mode();
  void set_next_check();

  // CmdZ, CmdArm and CmdSb.
  void toggle_monitor();
  void toggle_manual();
  void reset();
  void show_reset_pressed(bool pressed);
  // Timer8: counts down to the next scan. A tick that misses its very second misses the scan.
  void tick();
  // Timer9: a terminal is lost.
  void alarm_tick();

 private:
  int setting(SettingsIndex index) const;
  // Runs `then` behind the report.
  void scan_and_report(std::function<void()> then);

  const Doors doors_;
  bool BeepPhase = false;
};

}  // namespace evac
