// Files whose changes go through a thread of their own, so that a disk that is slow, or does not answer at
// all, holds nobody up for long. Changes keep their order. What is read, looked for or listed is asked of
// each drive by a thread of that drive's: while it does not answer, what it said last holds; what it never
// said is an error, or not there, once the start is over. What is appended reaches the disk itself by one
// thread more, behind the caller's back.
#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <thread>

#include "machine/last_word.h"
#include "machine/patience.h"
#include "platform/files.h"

namespace evac {

class BackgroundFiles : public Files {
 public:
  // How long a caller waits for its own write. One that takes longer counts as written, as long as nothing
  // else is known; behind one that takes longer nobody waits.
  static constexpr std::chrono::milliseconds kAppendWait{20}, kReplaceWait{80};
  // The lines of one alert share that wait.
  static constexpr std::chrono::milliseconds kAppendsTogether{100};
  // More than this can't wait: such a write fails.
  static constexpr std::size_t kMostBytes = 8 << 20;
  static constexpr std::chrono::seconds kStuck{1};

  // `inner` is changed by one thread at a time, and read by others meanwhile. `patience` is that of the one
  // thread that calls. `sync` brings what was appended to that path to the disk, and the path's folder too
  // where that is asked for.
  using Sync = std::function<void(const std::string& path, bool folder)>;
  explicit BackgroundFiles(
      Files& inner, Patience& patience, Sync sync = [](const std::string&, bool) {});
  // All that waits is written and synced before it returns, and all that was asked is answered: it takes as
  // long as the slowest of the disks.
  ~BackgroundFiles() override;
  // The same, but drives that do not answer are waited for for that long; false when one still does not:
  // then its thread goes on to use all of this, and `inner`. Nothing may be asked or changed any more.
  bool end(std::chrono::milliseconds most);

  FileError append(std::string_view path, std::string_view bytes) override;
  FileError replace(std::string_view path, std::string_view bytes) override;

  FileError read(std::string_view path, std::string& bytes) override;
  FileError read_end(std::string_view path, std::size_t count, std::string& bytes) override;
  // These three are an error where the disk takes too long, and may come about all the same.
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
    bool stuck = false;          // the oldest of them, or of a drive's questions, for longer than kStuck
    std::string failing;         // a file that could not be written, and nobody else was told; until it can
    FileError error = kNoError;  // why
  };
  Health health();

 private:
  enum class Change { kAppend, kReplace, kRemove, kCopy, kMakeFolder };
  struct Write {
    Change change;
    std::string path, bytes;  // of a copy: where to, and the path of what
    std::chrono::steady_clock::time_point since;
    bool done = false;
    bool overdue = false;  // its caller has gone on
    FileError result = kNoError;
    bool writes() const { return change == Change::kAppend || change == Change::kReplace; }
    bool appends() const { return change == Change::kAppend; }
  };
  FileError queue(std::shared_ptr<Write> write, std::chrono::milliseconds patience);
  // The same for what is no write: nothing is taken for done that is not known to be.
  FileError change(Change change, std::string_view path, std::string_view other = {});
  FileError carry_out(const Write& write, const std::string& bytes);
  // Whether some change waits to that path, or to what is in that folder.
  bool changes_wait(std::string_view path) const;

  struct Question {
    std::string key;   // what the answer is kept under
    std::string path;  // behind the changes to this
    std::function<DiskAnswer()> ask;
    bool keeps = true;  // its last answer holds
    std::chrono::steady_clock::time_point since = {};
    std::uint64_t changes = 0;  // made before it was asked
    bool done = false;
    DiskAnswer answer = {};
  };
  // A drive's questions, in their order.
  struct Asker {
    std::deque<std::shared_ptr<Question>> questions;  // the first is being asked
    bool mute = false;                                // one took too long, and there are still some
    std::condition_variable asked;
    std::thread thread;
  };
  // The disk's answer, or the last one where it takes too long, or none.
  std::optional<DiskAnswer> ask(Question question);
  Asker& asker_of(std::string_view path);
  void ask_until_done(Asker& asker);
  // What was written, or will be, is what the disk will say.
  void note_written(const Write& write);
  void write_until_done();
  void sync_until_done();
  void note_result(const Write& write);

  Files& inner_;
  Patience& patience_;
  const Sync sync_;
  std::mutex mutex_;
  std::condition_variable work_, written_, sync_work_, answered_;
  std::deque<std::shared_ptr<Write>> writes_;  // the first is being written
  std::size_t bytes_waiting_ = 0;
  // When the last appends began that share their wait, and what is left of it.
  std::chrono::steady_clock::time_point append_begun_{};
  std::chrono::steady_clock::duration append_wait_{};
  bool behind_ = false;           // a write took too long, and there are still some that wait
  std::map<char, Asker> askers_;  // by drive
  LastWord said_;
  std::uint64_t changes_ = 0;  // made since the start
  std::string failing_;
  FileError error_ = kNoError;
  std::set<std::string> unsynced_, folder_synced_;  // paths
  bool done_ = false, all_written_ = false;
  std::thread writer_, syncer_;
};

}  // namespace evac
