// A file of fixed records, numbered from 1: a 16-bit little-endian length, the text in Windows-1251, the rest
// unread. A record never written reads as an empty text. The file is read whole and replaced whole.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "store/data_folder.h"

namespace evac {

class RecordFile {
 public:
  // `file` by its name in the data folder.
  RecordFile(DataFolder& folder, std::string_view file, int record_length)
      : folder_(folder), file_(file), record_length_(record_length) {}

  // A missing file is created empty. What can be read of a damaged record is its text: one that claims more
  // than its record holds, or is cut off by the end of the file, gives what is there.
  FileError load();
  // Records begun in the file that was loaded, the last perhaps cut off.
  int count() const { return static_cast<int>(records_.size()); }
  // Those of them that are whole.
  int whole_count() const { return whole_count_; }
  bool empty() const { return records_.empty(); }
  // The text of record n, from 1; empty past the end. Looking at it is not taking it.
  const std::string& text(int n) const;
  const std::string& take(int n);
  // Ends what load() began: the folder learns whether non-empty records were left untaken.
  void end_reading();

  // Whether a record has room for that text.
  bool holds(std::string_view text) const;
  // Sets record n; those before it that were never written are empty. What is longer than a record holds is
  // cut off.
  void put(int n, std::string_view text);
  // Replaces the file.
  FileError save();

 private:
  struct Record {
    std::string text;
    bool taken = false;
  };

  DataFolder& folder_;
  const std::string file_;
  const int record_length_;
  std::vector<Record> records_;
  int whole_count_ = 0;
  bool unread_ = false;  // the last loading failed
};

}  // namespace evac
