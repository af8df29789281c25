#include "machine/background_files.h"

#include <utility>

namespace evac {

using Clock = std::chrono::steady_clock;

BackgroundFiles::BackgroundFiles(Files& inner, Sync sync)
    : inner_(inner),
      sync_(std::move(sync)),
      writer_([this] { write_until_done(); }),
      syncer_([this] { sync_until_done(); }) {}

BackgroundFiles::~BackgroundFiles() {
  {
    const std::lock_guard lock(mutex_);
    done_ = true;
  }
  work_.notify_one();
  writer_.join();
  {
    const std::lock_guard lock(mutex_);
    all_written_ = true;
  }
  sync_work_.notify_one();
  syncer_.join();
}

FileError BackgroundFiles::append(std::string_view path, std::string_view bytes) {
  return queue(std::make_shared<Write>(Write{true, std::string(path), std::string(bytes), Clock::now()}),
               kAppendWait);
}

FileError BackgroundFiles::replace(std::string_view path, std::string_view bytes) {
  return queue(std::make_shared<Write>(Write{false, std::string(path), std::string(bytes), Clock::now()}),
               kReplaceWait);
}

FileError BackgroundFiles::queue(std::shared_ptr<Write> write, std::chrono::milliseconds patience) {
  std::unique_lock lock(mutex_);
  // A file that is written again and again waits once, with what is newest.
  if (!write->append && writes_.size() > 1 && !writes_.back()->append &&
      writes_.back()->path == write->path) {
    bytes_waiting_ += write->bytes.size() - writes_.back()->bytes.size();
    writes_.back()->bytes = std::move(write->bytes);
    return kNoError;
  }
  if (bytes_waiting_ + write->bytes.size() > kMostBytes) {
    failing_ = write->path;
    return error_ = kDeviceError;
  }
  bytes_waiting_ += write->bytes.size();
  writes_.push_back(write);
  work_.notify_one();
  if (!behind_ && written_.wait_for(lock, patience, [&] { return write->done; })) return write->result;
  behind_ = write->overdue = true;
  return kNoError;
}

void BackgroundFiles::write_until_done() {
  std::unique_lock lock(mutex_);
  while (true) {
    work_.wait(lock, [this] { return done_ || !writes_.empty(); });
    if (writes_.empty()) return;
    const std::shared_ptr<Write> write = writes_.front();
    const std::string bytes = write->bytes;
    lock.unlock();
    const FileError result =
        write->append ? inner_.append(write->path, bytes) : inner_.replace(write->path, bytes);
    lock.lock();
    write->result = result;
    write->done = true;
    bytes_waiting_ -= bytes.size();
    writes_.pop_front();
    if (writes_.empty()) behind_ = false;
    note_result(*write);
    written_.notify_all();
  }
}

void BackgroundFiles::note_result(const Write& write) {
  if (write.result == kNoError) {
    if (failing_ == write.path) failing_.clear();
    if (!write.append) return;
    unsynced_.insert(write.path);
    sync_work_.notify_one();
  } else if (write.append || write.overdue) {
    failing_ = write.path;
    error_ = write.result;
  }
}

void BackgroundFiles::sync_until_done() {
  std::unique_lock lock(mutex_);
  while (true) {
    sync_work_.wait(lock, [this] { return all_written_ || !unsynced_.empty(); });
    if (unsynced_.empty()) return;
    const auto paths = std::exchange(unsynced_, {});
    for (const auto& path : paths) {
      const bool first = known_.insert(path).second;
      lock.unlock();
      sync_(path, first);
      lock.lock();
    }
  }
}

void BackgroundFiles::catch_up() {
  std::unique_lock lock(mutex_);
  written_.wait(lock, [this] { return writes_.empty(); });
}

BackgroundFiles::Health BackgroundFiles::health() {
  const std::lock_guard lock(mutex_);
  return {static_cast<int>(writes_.size()),
          !writes_.empty() && Clock::now() - writes_.front()->since > kStuck, failing_, error_};
}

FileError BackgroundFiles::read(std::string_view path, std::string& bytes) {
  catch_up();
  return inner_.read(path, bytes);
}

FileError BackgroundFiles::read_end(std::string_view path, std::size_t count, std::string& bytes) {
  catch_up();
  return inner_.read_end(path, count, bytes);
}

FileError BackgroundFiles::remove(std::string_view path) {
  catch_up();
  return inner_.remove(path);
}

FileError BackgroundFiles::copy(std::string_view from, std::string_view to) {
  catch_up();
  return inner_.copy(from, to);
}

FileError BackgroundFiles::make_folder(std::string_view path) {
  catch_up();
  return inner_.make_folder(path);
}

bool BackgroundFiles::is_file(std::string_view path) {
  catch_up();
  return inner_.is_file(path);
}

bool BackgroundFiles::is_folder(std::string_view path) {
  catch_up();
  return inner_.is_folder(path);
}

std::vector<std::string> BackgroundFiles::folders(std::string_view path) {
  catch_up();
  return inner_.folders(path);
}

std::vector<std::string> BackgroundFiles::files(std::string_view path) {
  catch_up();
  return inner_.files(path);
}

std::vector<std::string> BackgroundFiles::drives() {
  return inner_.drives();
}

bool BackgroundFiles::drive_ready(char letter) {
  catch_up();
  return inner_.drive_ready(letter);
}

}  // namespace evac
