// The data folder as the stores use it: files by their names in it, read whole and replaced whole. It keeps
// in mind which reading left records untaken, so that the next save does not lose them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/system_model.h"
#include "platform/files.h"

namespace evac {

class DataFolder {
 public:
  struct Doors {
    Files& files;
    const SettingsState& settings;
    FilesState& known;
  };
  explicit DataFolder(const Doors& doors) : doors_(doors) {}

  // "C:\ZEF_DAT\alarm\f_al.dat" of "alarm\f_al.dat".
  std::string path(std::string_view file) const { return doors_.settings.data_path(file); }

  bool has(std::string_view file) const { return doors_.files.is_file(path(file)); }
  // The files of a folder in it, such as "timer", by name and as they are listed.
  std::vector<std::string> names(std::string_view folder) const { return doors_.files.files(path(folder)); }

  // A missing file is created empty; on a full disk it reads as empty all the same.
  FileError read(std::string_view file, std::string& bytes);
  // Told behind each reading: whether it was cut, that is left a record untaken that is not empty.
  void reading_ended(std::string_view file, bool cut);
  // The first replacing behind a cut reading keeps the file as it was, as NAME.bak. What can't be kept is not
  // replaced.
  FileError replace(std::string_view file, std::string_view bytes);

 private:
  const Doors doors_;
};

// What the operator is told where nothing else is settled: which file could not be written or read, and why.
std::string write_fault(std::string_view file, FileError error);
std::string read_fault(std::string_view file, FileError error);

}  // namespace evac
