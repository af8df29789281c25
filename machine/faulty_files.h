// Files with faults, for tests, drills and the simulation: a disk that is full, refuses, answers late, or has
// room for so many bytes only, wherever in a save they run out.
#pragma once

#include <sys/types.h>

#include <chrono>
#include <functional>
#include <optional>

#include "platform/files.h"

namespace evac {

// In front of any files.
class FaultyFiles : public Files {
 public:
  using Hold = std::function<void(std::chrono::milliseconds)>;
  // `hold` lets time pass in the midst of a call.
  FaultyFiles(Files& inner, Hold hold) : inner_(inner), hold_(std::move(hold)) {}

  // What every write ends with, and leaves the file as it was; kNoError: it works.
  void set_refusal(FileError error) { refusal_ = error; }
  // The next writing or reading takes so long; those behind it do not.
  void stall_next(std::chrono::milliseconds time) { stall_ = time; }
  // Told of what was written with success: the file's path and its new bytes, or those put behind it.
  std::function<void(std::string_view path, std::string_view bytes)> replaced = [](auto, auto) {},
                                                                     appended = [](auto, auto) {};
  std::function<void(std::string_view path)> removed = [](auto) {};
  // Whether a file of that path never reaches the disk when it is replaced: it is only told of.
  std::function<bool(std::string_view path)> kept_off = [](auto) { return false; };

  FileError read(std::string_view path, std::string& bytes) override;
  FileError read_end(std::string_view path, std::size_t count, std::string& bytes) override;
  FileError replace(std::string_view path, std::string_view bytes) override;
  FileError append(std::string_view path, std::string_view bytes) override;
  FileError remove(std::string_view path) override;
  FileError copy(std::string_view from, std::string_view to) override;
  FileError make_folder(std::string_view path) override;
  bool is_file(std::string_view path) override { return inner_.is_file(path); }
  bool is_folder(std::string_view path) override { return inner_.is_folder(path); }
  std::vector<std::string> folders(std::string_view path) override { return inner_.folders(path); }
  std::vector<std::string> files(std::string_view path) override { return inner_.files(path); }
  std::vector<std::string> drives() override { return inner_.drives(); }
  bool drive_ready(char letter) override { return inner_.drive_ready(letter); }

 private:
  void stall();
  // The result of the write, or the refusal.
  template <class Write>
  FileError unless_refused(const Write& write);

  Files& inner_;
  const Hold hold_;
  FileError refusal_ = kNoError;
  std::chrono::milliseconds stall_{0};
};

// Under the files: the system's own write, as PosixFiles calls it.
class FaultyDisk {
 public:
  // So many bytes can still be written, and behind them none; none: there is room for all.
  void set_room(std::optional<std::size_t> bytes) { room_ = bytes; }
  // No call writes more than so many bytes.
  void set_most_at_once(std::size_t bytes) { most_at_once_ = bytes; }
  // Called once there is no room left, in the midst of the write: a process that is killed there.
  std::function<void()> out_of_room = [] {};

  ssize_t write(int fd, const void* bytes, std::size_t count);

 private:
  std::optional<std::size_t> room_;
  std::size_t most_at_once_ = static_cast<std::size_t>(-1);
};

}  // namespace evac
