// The alert's files in the folder "alarm": the thirteen settings lines and the steps of the algorithms. A
// missing file is created and reads as empty; a file that can't be read or written is told in a box.
#pragma once

#include <string>
#include <string_view>

#include "model/system_model.h"
#include "platform/machine.h"

namespace evac {

class AlertStore {
 public:
  AlertStore(SettingsState& settings, Files& files, Boxes& boxes)
      : settings_(settings), files_(files), boxes_(boxes) {}

  // Fills every settings line; one that was never written becomes empty. A file that can't be read leaves the
  // lines as they were.
  void LoadSettings();

 private:
  SettingsState& settings_;
  Files& files_;
  Boxes& boxes_;
};

// Hours and minutes between two automatic scans, as seconds of a day: 0..86399.
int scan_period(const SettingsState& settings);

}  // namespace evac
