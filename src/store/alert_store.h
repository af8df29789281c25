// The alert's files in the folder "alarm": the thirteen settings lines, the steps of the algorithms, and
// their readable print. A missing file is created and reads as empty.
#pragma once

#include <string>
#include <vector>

#include "model/system_model.h"
#include "store/data_folder.h"

namespace evac {

class AlertStore {
 public:
  // The steps of each algorithm, in their order.
  using AlgorithmLines = BoundedArray<std::vector<std::string>, 1, kZones>;

  struct Doors {
    SettingsState& settings;
    AlgorithmState& algorithms;
    DataFolder& folder;
  };
  explicit AlertStore(const Doors& doors) : doors_(doors) {}

  // Fills every settings line; one that was never written becomes empty. A file that can't be read leaves the
  // lines as they were.
  FileError LoadSettings();
  FileError SaveSettings();

  // Empties the table and fills it from the file. A number of an algorithm below the one before ends the
  // reading with no error; a number or a step outside the table ends it with kFileSubscript.
  FileError LoadAlgorithms();
  // Writes all lines, and puts them into the table, which is not emptied before: a step that is no longer
  // among the lines stays until the next load. Of more steps than the table holds nothing is written:
  // kFileSubscript.
  FileError SaveAlgorithms(const AlgorithmLines& lines);

  // Writes the print of the table, the file kPrintFile, and gives its lines.
  static constexpr std::string_view kPrintFile = "alarm\\f_alg";
  FileError PrintAlgorithms(std::vector<std::string>& lines);
  std::string print_path() const { return doors_.folder.path(kPrintFile); }

 private:
  const Doors doors_;
};

// Hours and minutes between two automatic scans, as seconds of a day: 0..86399.
int scan_period(const SettingsState& settings);

}  // namespace evac
