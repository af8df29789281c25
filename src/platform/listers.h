// The listers of drives, folders and files: lists that read the disk when they are pointed at a place.
#pragma once

#include <algorithm>
#include <string>

#include "model/text.h"
#include "platform/controls.h"
#include "platform/files.h"

namespace evac {

// The drives that exist, as "C:" and so on. One is chosen from the start, and its choice outlasts its going.
class DriveLister : public RowControl {
 public:
  DriveLister(const Place& place, std::string_view name, Files& files)
      : RowControl(place, Kind::kLister, name), files_(files) {
    refresh();
  }
  // "C:".
  const std::string& drive() const { return drive_; }
  // Chooses a drive by its letter; one that does not exist changes nothing.
  void choose(char letter) {
    if (const int row = find(letter); row >= 0) select(row);
  }
  void refresh() {
    clear();
    add_all(files_.drives());
    mark(find(drive_[0]));
  }

 protected:
  void selection_changed() override {
    if (selected() >= 0) drive_ = row(selected());
  }

 private:
  int find(char letter) const {
    const auto same = [&](const std::string& drive) {
      return lower_case(drive.substr(0, 1)) == lower_case({&letter, 1});
    };
    const auto at = std::ranges::find_if(rows(), same);
    return at == rows().end() ? -1 : static_cast<int>(at - rows().begin());
  }

  Files& files_;
  std::string drive_ = "C:";
};

// Path of a file or folder in a folder; a drive's root has its backslash already.
inline std::string path_in(std::string_view folder, std::string_view name) {
  return join(folder, folder.ends_with('\\') ? "" : "\\", name);
}

// The folder around that one; a drive's root has none but itself.
inline std::string folder_around(std::string_view folder) {
  const auto end = folder.find_last_of('\\');
  if (end == std::string_view::npos || end + 1 == folder.size()) return std::string(folder);
  return std::string(folder.substr(0, end < 3 ? end + 1 : end));
}

// Folders of a folder, as full paths, the way the system lists them.
class FolderLister : public RowControl {
 public:
  FolderLister(const Place& place, std::string_view name, Files& files)
      : RowControl(place, Kind::kLister, name), files_(files) {}
  const std::string& path() const { return path_; }
  // Reads the folder, also when it is the same one, and raises `change`.
  void point_at(std::string_view path) {
    path_ = path;
    refresh();
    change();
  }
  // Goes into the chosen folder.
  void open_chosen() {
    if (selected() >= 0) point_at(std::string(row(selected())));
  }
  void refresh() {
    clear();
    for (const auto& folder : files_.folders(path_)) add(path_in(path_, folder));
  }

  Event<> change;

 private:
  Files& files_;
  std::string path_;
};

// Files of a folder that fit the pattern, as names.
class FileLister : public RowControl {
 public:
  FileLister(const Place& place, std::string_view name, Files& files, std::string_view pattern)
      : RowControl(place, Kind::kLister, name), files_(files), pattern_(pattern) {}
  void point_at(std::string_view path) {
    path_ = path;
    refresh();
  }
  void refresh() {
    clear();
    auto names = files_.files(path_);
    std::erase_if(names, [this](const std::string& name) { return !matches_pattern(name, pattern_); });
    add_all(std::move(names));
  }

 private:
  Files& files_;
  std::string path_;
  const std::string pattern_;
};

}  // namespace evac
