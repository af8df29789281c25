// Files on a POSIX disk: each drive is a directory, names are found without regard to case. What is written
// is for its own user alone: files 0600, folders 0700.
#pragma once

#include <sys/types.h>

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <set>

#include "platform/files.h"

namespace evac {

class PosixFiles : public Files {
 public:
  // Drive C first of all; a drive that is not in the map does not exist.
  explicit PosixFiles(std::map<char, std::filesystem::path> drives) : drives_(std::move(drives)) {}

  FileError read(std::string_view path, std::string& bytes) override;
  FileError read_end(std::string_view path, std::size_t count, std::string& bytes) override;
  FileError replace(std::string_view path, std::string_view bytes) override;
  FileError append(std::string_view path, std::string_view bytes) override;
  FileError remove(std::string_view path) override;
  FileError copy(std::string_view from, std::string_view to) override;
  FileError make_folder(std::string_view path) override;
  bool is_file(std::string_view path) override;
  bool is_folder(std::string_view path) override;
  std::vector<std::string> folders(std::string_view path) override;
  std::vector<std::string> files(std::string_view path) override;
  std::vector<std::string> drives() override;
  bool drive_ready(char letter) override;

  // Brings what was appended to a file to the disk itself, and where `folder` is set the file's name too.
  FileError sync(std::string_view path, bool folder) const;
  // Removes what saves that were cut off have left in that folder and those in it.
  void remove_left_over(std::string_view path);
  // Puts a drive in, with its directory, or takes it out.
  void mount(char letter, std::filesystem::path directory) {
    drives_[letter] = std::move(directory);
    spellings_->forget();
  }
  void unmount(char letter) { drives_.erase(letter); }
  // In place of the system's own write: how much of it was written, or -1 and errno.
  using Write = std::function<ssize_t(int fd, const void* bytes, std::size_t count)>;
  void set_write(Write write) { write_ = std::move(write); }
  // The same for its read.
  using Read = std::function<ssize_t(int fd, void* bytes, std::size_t count)>;
  void set_read(Read read) { read_ = std::move(read); }
  // Where a path of the system lies on the disk: the existing spelling of each part, the given one of what is
  // missing. Empty for a drive that is not there.
  std::filesystem::path locate(std::string_view path) const;

 private:
  // A file of this process's own beside `file`, with those bytes on the disk.
  FileError write_neighbour(const std::filesystem::path& file, std::string_view bytes,
                            std::filesystem::path& neighbour);
  // Removes the neighbours that processes left when they ended in the middle of a save.
  void remove_stale(const std::filesystem::path& folder);
  std::vector<std::string> names(std::string_view path, bool folders) const;
  FileError write_all(int fd, std::string_view bytes) const;
  // From where the file stands to its end.
  FileError read_all(int fd, std::string& bytes) const;

  // Under which spelling a folder was found, so that a line of the journal need not search the folders on its
  // way again. For any thread.
  class Spellings {
   public:
    // Where the path lies, if its folder lies where it was found last and what is asked for is in it.
    std::optional<std::string> place_of(std::string_view path);
    void remember(std::string_view path, const std::filesystem::path& place);
    void forget();

   private:
    std::mutex mutex_;
    std::map<std::string, std::string, std::less<>>
        folders_;  // their places, by path up to the last backslash
  };

  std::map<char, std::filesystem::path> drives_;
  const std::shared_ptr<Spellings> spellings_ = std::make_shared<Spellings>();
  Write write_;                                      // none: the system's
  Read read_;                                        // the same
  int neighbours_ = 0;                               // made so far
  std::set<std::filesystem::path> cleared_folders_;  // of stale neighbours, before the first save there
};

}  // namespace evac
