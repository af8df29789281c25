// Files on a POSIX disk: each drive is a directory, names are found without regard to case.
#pragma once

#include <filesystem>
#include <map>

#include "platform/files.h"

namespace evac {

class PosixFiles : public Files {
 public:
  // Drive C first of all; a drive that is not in the map does not exist.
  explicit PosixFiles(std::map<char, std::filesystem::path> drives) : drives_(std::move(drives)) {}

  int read(std::string_view path, std::string& bytes) override;
  int read_end(std::string_view path, std::size_t count, std::string& bytes) override;
  int replace(std::string_view path, std::string_view bytes) override;
  int append(std::string_view path, std::string_view bytes) override;
  int remove(std::string_view path) override;
  int copy(std::string_view from, std::string_view to) override;
  int make_folder(std::string_view path) override;
  bool is_file(std::string_view path) override;
  bool is_folder(std::string_view path) override;
  std::vector<std::string> folders(std::string_view path) override;
  std::vector<std::string> files(std::string_view path) override;
  std::vector<std::string> drives() override;
  bool drive_ready(char letter) override;

  // Puts a drive in, with its directory, or takes it out.
  void mount(char letter, std::filesystem::path directory) { drives_[letter] = std::move(directory); }
  void unmount(char letter) { drives_.erase(letter); }
  // Where a path of the system lies on the disk: the existing spelling of each part, the given one of what is
  // missing. Empty for a drive that is not there.
  std::filesystem::path locate(std::string_view path) const;

 protected:
  // The steps of a save, apart so that a test can stop between any two of them. Each returns an error number.
  virtual int write_whole(const std::filesystem::path& file, std::string_view bytes);
  virtual int rename_over(const std::filesystem::path& from, const std::filesystem::path& to);
  virtual int sync_folder(const std::filesystem::path& folder);

 private:
  std::vector<std::string> names(std::string_view path, bool folders) const;

  std::map<char, std::filesystem::path> drives_;
};

}  // namespace evac
