// POSIX files whose appended lines reach the disk itself soon behind the caller's back: a thread of its own
// syncs them, so that a slow disk never holds an alert up.
#pragma once

#include <condition_variable>
#include <mutex>
#include <set>
#include <thread>

#include "machine/posix_files.h"

namespace evac {

class SyncedFiles : public PosixFiles {
 public:
  explicit SyncedFiles(std::map<char, std::filesystem::path> drives);
  // Everything appended is synced before it returns.
  ~SyncedFiles() override;

  FileError append(std::string_view path, std::string_view bytes) override;

 private:
  void sync_until_done();

  std::mutex mutex_;
  std::condition_variable wake_;
  std::set<std::filesystem::path> unsynced_;
  bool done_ = false;
  std::thread worker_;
};

}  // namespace evac
