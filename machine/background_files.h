// Files whose writing goes through a thread of its own, so that a disk that is slow, or does not answer at
// all, holds nobody up for long. Writes keep their order. What is read, looked for or listed is asked of the
// disk by a second thread: while it does not answer, what it said last holds, and never an empty answer in
// its place. What is appended reaches the disk itself by a third one, behind the caller's back.
#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <functional>
#include <map>
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
  // The lines of one alert share that wait.
  static constexpr std::chrono::milliseconds kAppendsTogether{100};
  // How long a caller waits for an answer that was given once before; the first time, for as long as it
  // takes.
  static constexpr std::chrono::milliseconds kAnswerWait{80};
  // So much of what the disk said is kept in mind.
  static constexpr std::size_t kMostKnown = 32 << 20;
  // More than this can't wait: such a write fails.
  static constexpr std::size_t kMostBytes = 8 << 20;
  static constexpr std::chrono::seconds kStuck{1};

  // `inner` is written by one thread at a time, and read by another meanwhile. `sync` brings what was
  // appended to that path to the disk, and the path's folder too where that is asked for.
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
    bool stuck = false;          // the oldest of them, or a question, for longer than kStuck
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

  // What the disk says: of a reading, a listing, or whether something is there.
  struct Answer {
    FileError error = kNoError;
    std::string bytes = {};
    std::vector<std::string> names = {};
    bool yes = false;
  };
  using Ask = std::function<Answer()>;
  struct Question {
    std::string key;
    Ask ask;
    std::chrono::steady_clock::time_point since;
    std::uint64_t changes;  // made before it was asked
    bool done = false;
    Answer answer = {};
  };
  // The disk's answer behind the writes before it, or the last one of that key where it takes too long.
  Answer ask(const std::string& key, Ask question);
  void ask_until_done();
  static std::size_t size_of(const std::string& key, const Answer& answer);
  void keep(const std::string& key, const Answer& answer);
  void forget(const std::string& key);
  // What was written, or will be, is what the disk will say.
  void note_written(const Write& write);
  // Before something is done to that path: what was said of it, and of what is in the folder around it.
  void forget_all_of(std::string_view path);
  // Returns when nothing waits to be written.
  void catch_up();
  void write_until_done();
  void sync_until_done();
  void note_result(const Write& write);

  Files& inner_;
  const Sync sync_;
  std::mutex mutex_;
  std::condition_variable work_, written_, sync_work_, asked_, answered_;
  std::deque<std::shared_ptr<Write>> writes_;  // the first is being written
  std::size_t bytes_waiting_ = 0;
  // When the last appends began that share their wait, and what is left of it.
  std::chrono::steady_clock::time_point append_begun_{};
  std::chrono::steady_clock::duration append_wait_{};
  bool behind_ = false;  // a write took too long, and there are still some that wait
  std::deque<std::shared_ptr<Question>> questions_;  // the first is being asked
  bool mute_ = false;                                // a question took too long, and there are still some
  std::map<std::string, Answer> said_;               // by the disk, last
  std::size_t bytes_said_ = 0;
  std::uint64_t changes_ = 0;  // made since the start
  std::string failing_;
  FileError error_ = kNoError;
  std::set<std::string> unsynced_, known_;  // paths; of those known, the folder was synced
  bool done_ = false, all_written_ = false;
  std::thread writer_, syncer_, asker_;
};

}  // namespace evac
