// A file of fixed records, numbered from 1: a 16-bit little-endian length, the text in Windows-1251, the rest
// unread. A record never written reads as an empty text. The file is read whole and replaced whole.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"

namespace evac {

class RecordFile {
 public:
  RecordFile(Files& files, std::string path, int record_length)
      : files_(files), path_(std::move(path)), record_length_(record_length) {}

  // Returns the error number. A missing file is created empty. What can be read of a damaged record is its
  // text: one that claims more than its record holds, or is cut off by the end of the file, gives what is
  // there.
  int load();
  // Records begun in the file, the last perhaps cut off.
  int count() const { return static_cast<int>(records_.size()); }
  bool empty() const { return records_.empty(); }
  // The text of record n, from 1; empty past the end.
  const std::string& text(int n) const;

  // As if the file were emptied.
  void clear() { records_.clear(); }
  // Sets record n; those before it that were never written are empty. What is longer than a record holds is
  // cut off.
  void put(int n, std::string_view text);
  // Replaces the file; returns the error number.
  int save();

 private:
  Files& files_;
  const std::string path_;
  const int record_length_;
  std::vector<std::string> records_;
};

}  // namespace evac
