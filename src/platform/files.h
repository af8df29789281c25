// Files by the system's paths: a drive letter, backslashes, names without regard to case
// ("C:\ZEF_DAT\message"). Nothing here is a fault: each operation returns its error number, and the caller
// decides.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace evac {

// How a file operation ended, in the numbers that the system prints. No caller can overlook one: who has no
// use for it says so with (void), and why.
enum [[nodiscard]] FileError : int{kNoError = 0,
                                   kFileSubscript = 9,  // a number in a file that lies outside its table
                                   kFileNotFound = 53,     kBadFileMode = 54,     kDeviceError = 57,
                                   kFileExists = 58,       kBadRecordLength = 59, kDiskFull = 61,
                                   kPermissionDenied = 70, kDriveNotReady = 71,   kPathFileAccess = 75,
                                   kPathNotFound = 76};
// What the operator is told of it, such as "нет места на диске".
std::string_view words_of(FileError error);

class Files {
 public:
  virtual ~Files() = default;

  virtual FileError read(std::string_view path, std::string& bytes) = 0;
  // The last `count` bytes; all of a shorter file.
  virtual FileError read_end(std::string_view path, std::size_t count, std::string& bytes) = 0;
  // The whole file, old or new: never a torn one, whenever the power goes. Creates it when it is missing.
  virtual FileError replace(std::string_view path, std::string_view bytes) = 0;
  // In the file when it returns; it need not survive a power cut yet, so that a journal line does not wait
  // for the disk while zones are being switched. Creates the file when it is missing.
  virtual FileError append(std::string_view path, std::string_view bytes) = 0;
  virtual FileError remove(std::string_view path) = 0;
  virtual FileError copy(std::string_view from, std::string_view to) = 0;
  virtual FileError make_folder(std::string_view path) = 0;

  virtual bool is_file(std::string_view path) = 0;
  virtual bool is_folder(std::string_view path) = 0;
  // Names alone, sorted without regard to the case of letters, digits as characters; empty when there is no
  // such folder.
  virtual std::vector<std::string> folders(std::string_view path) = 0;
  virtual std::vector<std::string> files(std::string_view path) = 0;

  // "C:", "D:" and so on, those that exist.
  virtual std::vector<std::string> drives() = 0;
  virtual bool drive_ready(char letter) = 0;
};

// Whether the name fits one of the patterns, such as "*.Wav;*.mp3"; letters without regard to case.
bool matches_pattern(std::string_view name, std::string_view patterns);
// The order in which names are listed.
bool listed_before(std::string_view a, std::string_view b);
// Sorts in that order; quick also for the ten thousand names of a folder of music.
void sort_as_listed(std::vector<std::string>& names);

}  // namespace evac
