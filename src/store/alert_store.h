// The alert's files in the folder "alarm": the thirteen settings lines, the steps of the algorithms, and
// their readable print. A missing file is created and reads as empty; one that can't be read or written is
// told in a box.
#pragma once

#include <string>
#include <vector>

#include "model/system_model.h"
#include "platform/machine.h"

namespace evac {

class AlertStore {
 public:
  // The steps of each algorithm, in their order.
  using AlgorithmLines = BoundedArray<std::vector<std::string>, 1, kZones>;

  struct Doors {
    SettingsState& settings;
    AlgorithmState& algorithms;
    Files& files;
    Boxes& boxes;
  };
  explicit AlertStore(const Doors& doors) : doors_(doors) {}

  // Fills every settings line; one that was never written becomes empty. A file that can't be read leaves the
  // lines as they were.
  void LoadSettings();
  void SaveSettings();

  // Empties the table and fills it from the file. A number of an algorithm below the one before ends the
  // reading silently; a number or a step outside the table ends it with a read fault.
  void LoadAlgorithms();
  // Writes all lines, and puts them into the table, which is not emptied before: a step that is no longer
  // among the lines stays until the next load. More steps than the table holds are a write fault, and nothing
  // is written.
  void SaveAlgorithms(const AlgorithmLines& lines);

  // Writes the print of the table, and returns its lines.
  std::vector<std::string> PrintAlgorithms();
  std::string print_path() const;

 private:
  const Doors doors_;
};

// Hours and minutes between two automatic scans, as seconds of a day: 0..86399.
int scan_period(const SettingsState& settings);

}  // namespace evac
