#include "machine/synced_files.h"

#include <fcntl.h>
#include <unistd.h>

#include <utility>

namespace evac {

SyncedFiles::SyncedFiles(std::map<char, std::filesystem::path> drives)
    : PosixFiles(std::move(drives)), worker_([this] { sync_until_done(); }) {}

SyncedFiles::~SyncedFiles() {
  {
    const std::lock_guard lock(mutex_);
    done_ = true;
  }
  wake_.notify_one();
  worker_.join();
}

FileError SyncedFiles::append(std::string_view path, std::string_view bytes) {
  const FileError error = PosixFiles::append(path, bytes);
  if (error == kNoError) {
    {
      const std::lock_guard lock(mutex_);
      unsynced_.insert(locate(path));
    }
    wake_.notify_one();
  }
  return error;
}

void SyncedFiles::sync_until_done() {
  std::unique_lock lock(mutex_);
  while (true) {
    wake_.wait(lock, [this] { return done_ || !unsynced_.empty(); });
    const auto files = std::exchange(unsynced_, {});
    if (files.empty()) return;
    lock.unlock();
    for (const auto& file : files)
      if (const int fd = ::open(file.c_str(), O_RDONLY | O_CLOEXEC); fd >= 0) {
        // Nobody waits for this, and the next line tries again.
        (void)::fdatasync(fd);
        ::close(fd);
      }
    lock.lock();
  }
}

}  // namespace evac
