// What a pass of the scan has shown: names the terminals that did not answer, counts how many passes in a row
// each has missed, and tells of those that have missed too many.
#pragma once

#include "console/terminals_tab.h"
#include "journal/journal.h"
#include "model/system_model.h"
#include "platform/machine.h"
#include "supervision/monitor_panel.h"

namespace evac {

class ScanReport {
 public:
  struct Doors {
    SupervisionState& supervision;
    const SettingsState& settings;
    const TerminalsTab& terminals_tab;
    MonitorPanel& panel;
    Tone& tone;
    const EventLoop& loop;
    Journal& journal;
  };
  explicit ScanReport(const Doors& doors) : doors_(doors) {}

  // Judges every terminal that is on by the flags of the last pass, also of one that was stopped.
  void tell();

 private:
  void tell_missed();
  void tell_lost(int terminal);

  const Doors doors_;
};

// 1500 Hz for a tenth of a second, where the settings have the audible warning on.
void warn(Tone& tone, const SettingsState& settings);

}  // namespace evac
