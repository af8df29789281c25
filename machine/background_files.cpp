#include "machine/background_files.h"

#include <algorithm>
#include <utility>

#include "model/text.h"

namespace evac {

namespace {

using Clock = std::chrono::steady_clock;

}  // namespace

BackgroundFiles::BackgroundFiles(Files& inner, Patience& patience, Sync sync)
    : inner_(inner),
      patience_(patience),
      sync_(std::move(sync)),
      writer_([this] { write_until_done(); }),
      syncer_([this] { sync_until_done(); }) {}

BackgroundFiles::~BackgroundFiles() {
  while (!end(std::chrono::hours(1))) {
  }
}

bool BackgroundFiles::end(std::chrono::milliseconds most) {
  {
    const std::lock_guard lock(mutex_);
    done_ = true;
  }
  work_.notify_one();
  if (writer_.joinable()) writer_.join();
  {
    const std::lock_guard lock(mutex_);
    all_written_ = true;
  }
  sync_work_.notify_one();
  if (syncer_.joinable()) syncer_.join();
  {
    std::unique_lock lock(mutex_);
    const auto none_asked = [](const auto& of) { return of.second.questions.empty(); };
    if (!answered_.wait_for(lock, most, [&] { return std::ranges::all_of(askers_, none_asked); }))
      return false;
  }
  for (auto& [drive, asker] : askers_) {
    asker.asked.notify_one();
    if (asker.thread.joinable()) asker.thread.join();
  }
  return true;
}

FileError BackgroundFiles::append(std::string_view path, std::string_view bytes) {
  return queue(
      std::make_shared<Write>(Write{Change::kAppend, std::string(path), std::string(bytes), Clock::now()}),
      kAppendWait);
}

FileError BackgroundFiles::replace(std::string_view path, std::string_view bytes) {
  return queue(
      std::make_shared<Write>(Write{Change::kReplace, std::string(path), std::string(bytes), Clock::now()}),
      kReplaceWait);
}

FileError BackgroundFiles::queue(std::shared_ptr<Write> write, std::chrono::milliseconds patience) {
  std::unique_lock lock(mutex_);
  ++changes_;
  // A file that is written again and again waits once, with what is newest.
  if (!write->appends() && writes_.size() > 1 && writes_.back()->change == Change::kReplace &&
      writes_.back()->path == write->path) {
    bytes_waiting_ += write->bytes.size() - writes_.back()->bytes.size();
    note_written(*write);
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
  const auto begun = Clock::now();
  if (write->appends() && begun - append_begun_ > kAppendsTogether) {
    append_begun_ = begun;
    append_wait_ = patience;
  }
  const auto most = write->appends() ? append_wait_ : Clock::duration(patience);
  const bool known = !behind_ && patience_.wait(
                                     written_, lock, [&] { return write->done; }, most);
  if (write->appends()) append_wait_ -= std::min(append_wait_, Clock::now() - begun);
  if (!known) behind_ = write->overdue = true;
  const FileError result = known ? write->result : kNoError;
  if (result == kNoError) note_written(*write);
  return result;
}

FileError BackgroundFiles::change(Change change, std::string_view path, std::string_view other) {
  std::unique_lock lock(mutex_);
  // A disk that is only slow catches up meanwhile.
  if (!patience_.starting() && !patience_.wait(written_, lock, [&] { return !behind_; })) return kDeviceError;
  const auto write =
      std::make_shared<Write>(Write{change, std::string(path), std::string(other), Clock::now()});
  ++changes_;
  bytes_waiting_ += write->bytes.size();
  writes_.push_back(write);
  work_.notify_one();
  const auto done = [&] { return write->done; };
  if (patience_.starting()) written_.wait(lock, done);
  if (patience_.wait(written_, lock, done)) return write->result;
  behind_ = write->overdue = true;
  return kDeviceError;
}

FileError BackgroundFiles::carry_out(const Write& write, const std::string& bytes) {
  switch (write.change) {
    case Change::kAppend:
      return inner_.append(write.path, bytes);
    case Change::kReplace:
      return inner_.replace(write.path, bytes);
    case Change::kRemove:
      return inner_.remove(write.path);
    case Change::kCopy:
      return inner_.copy(bytes, write.path);
    case Change::kMakeFolder:
      return inner_.make_folder(write.path);
  }
  return kDeviceError;
}

void BackgroundFiles::write_until_done() {
  std::unique_lock lock(mutex_);
  while (true) {
    work_.wait(lock, [this] { return done_ || !writes_.empty(); });
    if (writes_.empty()) return;
    const std::shared_ptr<Write> write = writes_.front();
    const std::string bytes = write->bytes;
    lock.unlock();
    const FileError result = carry_out(*write, bytes);
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
  if (!write.writes()) {
    ++changes_;
    said_.forget_all_of(write.path);
    if (write.result == kNoError && write.change != Change::kMakeFolder)
      said_.note_file(write.path, write.change == Change::kCopy);
    return;
  }
  if (write.result == kNoError) {
    if (failing_ == write.path) failing_.clear();
    if (!write.appends()) return;
    unsynced_.insert(write.path);
    sync_work_.notify_one();
  } else if (write.appends() || write.overdue) {
    said_.forget(reading_of(write.path));
    said_.forget(file_at(write.path));
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
      const bool first = folder_synced_.insert(path).second;
      lock.unlock();
      sync_(path, first);
      lock.lock();
    }
  }
}

bool BackgroundFiles::changes_wait(std::string_view path) const {
  return std::ranges::any_of(writes_, [&](const auto& write) {
    return same_path(write->path, path) || same_path(folder_of(write->path), path);
  });
}

BackgroundFiles::Health BackgroundFiles::health() {
  const std::lock_guard lock(mutex_);
  const auto stuck = [](const auto& waiting) {
    return !waiting.empty() && Clock::now() - waiting.front()->since > kStuck;
  };
  const bool silent = std::ranges::any_of(askers_, [&](auto& of) { return stuck(of.second.questions); });
  return {static_cast<int>(writes_.size()), stuck(writes_) || silent, failing_, error_};
}

BackgroundFiles::Asker& BackgroundFiles::asker_of(std::string_view path) {
  const std::string drive = lower_case(path.substr(0, 1));
  const bool named = drive >= "a" && drive <= "z";
  Asker& asker = askers_[named ? drive[0] : '\0'];
  if (!asker.thread.joinable()) asker.thread = std::thread([this, &asker] { ask_until_done(asker); });
  return asker;
}

std::optional<DiskAnswer> BackgroundFiles::ask(Question question) {
  std::unique_lock lock(mutex_);
  const auto written = [&] { return !changes_wait(question.path); };
  // Nobody waits twice for a disk that does not answer.
  if (!written() && (behind_ || !patience_.wait(written_, lock, written))) {
    if (const auto last = said_.of(question.key)) return last;
    if (!patience_.starting()) return {};
    written_.wait(lock, written);
  }
  Asker& asker = asker_of(question.path);
  auto& questions = asker.questions;
  const bool mute = asker.mute;
  if (mute)
    if (const auto last = said_.of(question.key)) return last;
  const auto asks_that = [&](const auto& other) { return other->key == question.key; };
  const auto waiting = std::ranges::find_if(questions, asks_that);
  const bool asked_already = mute && !patience_.starting() && waiting != questions.end();
  const auto asked = asked_already ? *waiting : std::make_shared<Question>(std::move(question));
  if (!asked_already) {
    asked->since = Clock::now();
    asked->changes = changes_;
    questions.push_back(asked);
    asker.asked.notify_one();
  }
  const auto answered = [&] { return asked->done; };
  if (!mute && patience_.wait(answered_, lock, answered)) return asked->answer;
  asker.mute = true;
  if (const auto last = said_.of(asked->key)) return last;
  if (!patience_.starting()) return {};
  answered_.wait(lock, answered);
  return asked->answer;
}

void BackgroundFiles::ask_until_done(Asker& asker) {
  std::unique_lock lock(mutex_);
  while (true) {
    asker.asked.wait(lock, [&] { return done_ || !asker.questions.empty(); });
    if (asker.questions.empty()) return;
    const std::shared_ptr<Question> question = asker.questions.front();
    lock.unlock();
    DiskAnswer answer = question->ask();
    lock.lock();
    question->answer = std::move(answer);
    question->done = true;
    asker.questions.pop_front();
    if (asker.questions.empty()) asker.mute = false;
    // Meanwhile something newer may have been written.
    if (question->keeps && question->changes == changes_) said_.keep(question->key, question->answer);
    answered_.notify_all();
  }
}

void BackgroundFiles::note_written(const Write& write) {
  if (write.appends())
    said_.forget(reading_of(write.path));
  else
    said_.keep(reading_of(write.path), {.bytes = write.bytes});
  said_.note_file(write.path, true);
}

FileError BackgroundFiles::read(std::string_view path, std::string& bytes) {
  const std::string file(path);
  auto answer = ask({reading_of(path), file, [this, file] {
                       DiskAnswer read;
                       read.error = inner_.read(file, read.bytes);
                       return read;
                     }});
  bytes = answer ? std::move(answer->bytes) : std::string();
  return answer ? answer->error : kDeviceError;
}

FileError BackgroundFiles::read_end(std::string_view path, std::size_t count, std::string& bytes) {
  const std::string file(path);
  auto answer = ask({.key = "end " + lower_case(path),
                     .path = file,
                     .ask =
                         [this, file, count] {
                           DiskAnswer read;
                           read.error = inner_.read_end(file, count, read.bytes);
                           return read;
                         },
                     .keeps = false});
  bytes = answer ? std::move(answer->bytes) : std::string();
  return answer ? answer->error : kDeviceError;
}

FileError BackgroundFiles::remove(std::string_view path) {
  return change(Change::kRemove, path);
}

FileError BackgroundFiles::copy(std::string_view from, std::string_view to) {
  return change(Change::kCopy, to, from);
}

FileError BackgroundFiles::make_folder(std::string_view path) {
  return change(Change::kMakeFolder, path);
}

bool BackgroundFiles::is_file(std::string_view path) {
  const std::string file(path);
  if (const auto answer =
          ask({file_at(path), file, [this, file] { return DiskAnswer{.yes = inner_.is_file(file)}; }}))
    return answer->yes;
  const std::lock_guard lock(mutex_);
  return said_.lists(path).value_or(false);
}

bool BackgroundFiles::is_folder(std::string_view path) {
  const std::string folder(path);
  const auto answer =
      ask({folder_at(path), folder, [this, folder] { return DiskAnswer{.yes = inner_.is_folder(folder)}; }});
  return answer && answer->yes;
}

std::vector<std::string> BackgroundFiles::folders(std::string_view path) {
  const std::string folder(path);
  return ask({folders_in(path), folder,
              [this, folder] { return DiskAnswer{.names = inner_.folders(folder)}; }})
      .value_or(DiskAnswer{})
      .names;
}

std::vector<std::string> BackgroundFiles::files(std::string_view path) {
  const std::string folder(path);
  return ask({files_in(path), folder, [this, folder] { return DiskAnswer{.names = inner_.files(folder)}; }})
      .value_or(DiskAnswer{})
      .names;
}

std::vector<std::string> BackgroundFiles::drives() {
  return inner_.drives();
}

bool BackgroundFiles::drive_ready(char letter) {
  const std::string drive(1, letter);
  const auto answer = ask({.key = "drive " + lower_case(drive), .path = drive, .ask = [this, letter] {
                             return DiskAnswer{.yes = inner_.drive_ready(letter)};
                           }});
  return answer && answer->yes;
}

}  // namespace evac
