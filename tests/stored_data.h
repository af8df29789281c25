// A data folder for stores without a console around them, and what is known of its files.
#pragma once

#include <algorithm>
#include <random>
#include <stdexcept>

#include "store/data_folder.h"

namespace evac {

// For what a test can't do without.
inline void must(FileError error) {
  if (error != kNoError) throw std::runtime_error(std::string(words_of(error)));
}

// Up to so many blows: bytes overwritten, cut off, put in, doubled; numbers blown up, in records of any
// length.
inline std::string damaged(std::string bytes, std::size_t most_blows, std::mt19937& random) {
  const auto below = [&](std::size_t n) { return n == 0 ? 0 : random() % n; };
  for (std::size_t blows = 1 + below(most_blows); blows > 0 && !bytes.empty(); --blows) {
    const std::size_t at = below(bytes.size()), record = at / 128 * 128;
    switch (below(20)) {
      case 0:
        bytes.resize(at);
        break;
      case 1:
        bytes.insert(at, 1 + below(40), static_cast<char>(random()));
        break;
      case 2:
        bytes.erase(at, 1 + below(300));
        break;
      case 3:
        bytes += bytes.substr(0, 1 + below(2000));
        break;
      case 4:
        bytes.replace(record, 32, std::string("\x1E\0", 2) + (below(2) ? "-" : "9") + std::string(29, '9'));
        break;
      default:
        bytes[below(2) ? at : record + below(std::min<std::size_t>(8, bytes.size() - record))] =
            below(2) ? static_cast<char>(random()) : "0123456789-\t"[below(12)];
    }
  }
  return bytes;
}

// A record as it must lie in a file: length, text, zero bytes.
inline std::string stored_record(const std::string& bytes, std::size_t length) {
  std::string record = std::string{static_cast<char>(bytes.size()), 0} + bytes;
  record.resize(length);
  return record;
}

struct StoredData {
  explicit StoredData(Files& machine_files) : files(machine_files) {
    // The folders may be there already.
    (void)files.make_folder(folder.path("alarm"));
    (void)files.make_folder(folder.path("message"));
  }
  // What the file holds; empty when there is none.
  std::string bytes_of(std::string_view file) {
    std::string bytes;
    return files.read(folder.path(file), bytes) == kNoError ? bytes : "";
  }
  // Whether the last reading of the file left something, and whether the old one was kept.
  bool cut(std::string_view file) {
    const CutFile* known = state.find(file);
    return known && known->cut;
  }
  bool kept(std::string_view file) {
    const CutFile* known = state.find(file);
    return known && known->kept;
  }

  Files& files;
  SettingsState settings;
  FilesState state;
  DataFolder folder{{.files = files, .settings = settings, .known = state}};
};

}  // namespace evac
