// What a disk said last, of readings, listings, and whether something is there: it holds while the disk does
// not answer.
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"

namespace evac {

struct DiskAnswer {
  FileError error = kNoError;
  std::string bytes = {};
  std::vector<std::string> names = {};
  bool yes = false;
};

// What an answer is kept under.
std::string reading_of(std::string_view path);
std::string file_at(std::string_view path);
std::string folder_at(std::string_view path);
std::string files_in(std::string_view folder);
std::string folders_in(std::string_view folder);
// All of the path before its last backslash.
std::string_view folder_of(std::string_view path);
bool same_path(std::string_view one, std::string_view other);

class LastWord {
 public:
  // So much is kept in mind.
  static constexpr std::size_t kMostKnown = 32 << 20;

  std::optional<DiskAnswer> of(const std::string& key) const;
  // Whether the listing of its folder names the file; none where that is not known.
  std::optional<bool> lists(std::string_view path) const;

  void keep(const std::string& key, const DiskAnswer& answer);
  void forget(const std::string& key);
  // The file is there now, or no more, in the listing of its folder too.
  void note_file(std::string_view path, bool there);
  // What was said of that path no longer holds.
  void forget_all_of(std::string_view path);

 private:
  std::map<std::string, DiskAnswer> said_;
  std::size_t bytes_ = 0;
};

}  // namespace evac
