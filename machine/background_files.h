// Files whose writing goes through a thread of its own, so that a disk that is slow, or does not answer at
// all, holds nobody up for long. Writes keep their order; readings come behind the writes before them. What
// is appended reaches the disk itself by a second thread, behind the caller's back.
#pragma once

#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <set>
#include <thread>

#include "platform/files.h"

namespace evac {

class BackgroundFiles : public Files {
 public:
  // How long a caller waits for its own write. One that takes longer counts as written, as long as nothing
  // else is known; behind one that takes longer nobody waits.
  static constexpr std::chrono::milliseconds kAppendWait{20}, kReplaceWait{80};
  // More than this can't wait: such a write fails.
  static constexpr std::size_t kMostBytes = 8 << 20;
  static constexpr std::chrono::seconds kStuck{1};

  // `inner` is used by one thread at a time. `sync` brings what was appended to that path to the disk, and
  // the path's folder too where that is asked for.
  using Sync = std::function<void(const std::string& path, bool folder)>;
  explicit BackgroundFiles(
      Files& inner, Sync sync = [](const std::string&, bool) {});
  // All that waits is written and synced before it returns.
  ~BackgroundFiles() override;

  FileError append(std::string_view path, std::string_view bytes) override;
  FileError replace(std::string_view path, std::string_view bytes) override;

  FileError read(std::string_view path, std::string& bytes) override;
  FileError read_end(std::string_view path, std::size_t count, std::string& bytes) override;
  FileError remove(std::string_view path) override;
  FileError copy(std::string_view from, std::string_view to) override;
  FileError make_folder(std::string_view path) override;
  bool is_file(std::string_view path) override;
  bool is_folder(std::string_view path) override;
  std::vector<std::string> folders(std::string_view path) override;
  std::vector<std::string> files(std::string_view path) override;
  std::vector<std::string> drives() override;
  bool drive_ready(char letter) override;

  struct Health {
    int waiting = 0;             // writes
    bool stuck = false;          // the oldest of them for longer than kStuck
    std::string failing;         // a file that could not be written, and nobody else was told; until it can
    FileError error = kNoError;  // why
  };
  Health health();

 private:
  struct Write {
    bool append;
    std::string path, bytes;
    std::chrono::steady_clock::time_point since;
    bool done = false;
    bool overdue = false;  // its caller has gone on
    FileError result = kNoError;
  };
  FileError queue(std::shared_ptr<Write> write, std::chrono::milliseconds patience);
  // Returns when nothing waits to be written.
  void catch_up();
  void write_until_done();
  void sync_until_done();
  void note_result(const Write& write);

  Files& inner_;
  const Sync sync_;
  std::mutex mutex_;
  std::condition_variable work_, written_, sync_work_;
  std::deque<std::shared_ptr<Write>> writes_;  // the first is being written
  std::size_t bytes_waiting_ = 0;
  bool behind_ = false;  // a write took too long, and there are still some that wait
  std::string failing_;
  FileError error_ = kNoError;
  std::set<std::string> unsynced_, known_;  // paths; of those known, the folder was synced
  bool done_ = false, all_written_ = false;
  std::thread writer_, syncer_;
};

}  // namespace evac
