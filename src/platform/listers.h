// The listers of drives, folders and files: lists that read the disk when they are pointed at a place.
#pragma once

#include <algorithm>
#include <string>

#include "platform/controls.h"
#include "platform/files.h"

namespace evac {

// The drives that exist, as "C:" and so on; a refresh keeps the chosen one chosen while it is there.
class DriveLister : public RowControl {
 public:
  DriveLister(const Place& place, std::string_view name, Files& files)
      : RowControl(place, Kind::kLister, name), files_(files) {
    refresh();
  }
  void refresh() {
    const auto drives = files_.drives();
    for (int i = count() - 1; i >= 0; --i)
      if (std::ranges::find(drives, row(i)) == drives.end()) remove(i);
    for (int i = 0; i < static_cast<int>(drives.size()); ++i)
      if (const auto& drive = drives[static_cast<std::size_t>(i)]; i == count() || row(i) != drive)
        insert(i, drive);
  }

 private:
  Files& files_;
};

// Folders of a folder, as full paths, the way the system lists them.
class FolderLister : public RowControl {
 public:
  FolderLister(const Place& place, std::string_view name, Files& files)
      : RowControl(place, Kind::kLister, name), files_(files) {}
  const std::string& path() const { return path_; }
  void point_at(std::string_view path) {
    path_ = path;
    clear();
    const std::string stem = path_.ends_with('\\') ? path_ : path_ + "\\";
    for (const auto& folder : files_.folders(path_)) add(stem + folder);
  }

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
    clear();
    for (const auto& file : files_.files(path))
      if (matches_pattern(file, pattern_)) add(file);
  }

 private:
  Files& files_;
  const std::string pattern_;
};

}  // namespace evac
