#include "machine/background_files.h"

#include <algorithm>
#include <utility>

#include "model/text.h"

namespace evac {

namespace {

using Clock = std::chrono::steady_clock;

// What an answer is kept under.
std::string reading_of(std::string_view path) {
  return "read " + lower_case(path);
}
std::string file_at(std::string_view path) {
  return "file " + lower_case(path);
}
std::string folder_at(std::string_view path) {
  return "folder " + lower_case(path);
}
std::string files_in(std::string_view folder) {
  return "files " + lower_case(folder);
}
std::string folders_in(std::string_view folder) {
  return "folders " + lower_case(folder);
}

}  // namespace

BackgroundFiles::BackgroundFiles(Files& inner, Sync sync)
    : inner_(inner),
      sync_(std::move(sync)),
      writer_([this] { write_until_done(); }),
      syncer_([this] { sync_until_done(); }),
      asker_([this] { ask_until_done(); }) {}

BackgroundFiles::~BackgroundFiles() {
  {
    const std::lock_guard lock(mutex_);
    done_ = true;
  }
  work_.notify_one();
  asked_.notify_one();
  writer_.join();
  asker_.join();
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
  ++changes_;
  // A file that is written again and again waits once, with what is newest.
  if (!write->append && writes_.size() > 1 && !writes_.back()->append &&
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
  if (write->append && begun - append_begun_ > kAppendsTogether) {
    append_begun_ = begun;
    append_wait_ = patience;
  }
  const auto most = write->append ? append_wait_ : Clock::duration(patience);
  const bool known = !behind_ && written_.wait_for(lock, most, [&] { return write->done; });
  if (write->append) append_wait_ -= std::min(append_wait_, Clock::now() - begun);
  if (!known) behind_ = write->overdue = true;
  const FileError result = known ? write->result : kNoError;
  if (result == kNoError) note_written(*write);
  return result;
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
    forget(reading_of(write.path));
    forget(file_at(write.path));
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
  const auto stuck = [](const auto& waiting) {
    return !waiting.empty() && Clock::now() - waiting.front()->since > kStuck;
  };
  return {static_cast<int>(writes_.size()), stuck(writes_) || stuck(questions_), failing_, error_};
}

BackgroundFiles::Answer BackgroundFiles::ask(const std::string& key, Ask question) {
  std::unique_lock lock(mutex_);
  const auto end = Clock::now() + kAnswerWait;
  const auto said = [&]() -> std::optional<Answer> {
    const auto last = said_.find(key);
    return last == said_.end() ? std::nullopt : std::optional(last->second);
  };
  // Nobody waits twice for a disk that does not answer.
  const bool waits = !behind_ && !mute_;
  const auto written = [this] { return writes_.empty(); };
  if (!(waits ? written_.wait_until(lock, end, written) : written())) {
    if (const auto last = said()) return *last;
    written_.wait(lock, written);
  }
  if (mute_)
    if (const auto last = said()) return *last;
  const auto asked = std::make_shared<Question>(Question{key, std::move(question), Clock::now(), changes_});
  questions_.push_back(asked);
  asked_.notify_one();
  const auto answered = [&] { return asked->done; };
  if (!answered_.wait_until(lock, end, answered)) {
    mute_ = true;
    if (const auto last = said()) return *last;
    answered_.wait(lock, answered);
  }
  return asked->answer;
}

void BackgroundFiles::ask_until_done() {
  std::unique_lock lock(mutex_);
  while (true) {
    asked_.wait(lock, [this] { return done_ || !questions_.empty(); });
    if (questions_.empty()) return;
    const std::shared_ptr<Question> question = questions_.front();
    lock.unlock();
    Answer answer = question->ask();
    lock.lock();
    question->answer = std::move(answer);
    question->done = true;
    questions_.pop_front();
    if (questions_.empty()) mute_ = false;
    // Meanwhile something newer may have been written.
    if (question->changes == changes_) keep(question->key, question->answer);
    answered_.notify_all();
  }
}

std::size_t BackgroundFiles::size_of(const std::string& key, const Answer& answer) {
  std::size_t bytes = sizeof(Answer) + key.size() + answer.bytes.size();
  for (const auto& name : answer.names) bytes += sizeof name + name.size();
  return bytes;
}

void BackgroundFiles::keep(const std::string& key, const Answer& answer) {
  forget(key);
  const std::size_t size = size_of(key, answer);
  // What went wrong once may be right the next time.
  if (answer.error != kNoError || bytes_said_ + size > kMostKnown) return;
  said_[key] = answer;
  bytes_said_ += size;
}

void BackgroundFiles::forget(const std::string& key) {
  const auto last = said_.find(key);
  if (last == said_.end()) return;
  bytes_said_ -= size_of(key, last->second);
  said_.erase(last);
}

void BackgroundFiles::note_written(const Write& write) {
  if (write.append)
    forget(reading_of(write.path));
  else
    keep(reading_of(write.path), {.bytes = write.bytes});
  keep(file_at(write.path), {.yes = true});
  const auto end = write.path.rfind('\\');
  const std::string listing = files_in(std::string_view(write.path).substr(0, end));
  const auto last = said_.find(listing);
  if (end == std::string::npos || last == said_.end()) return;
  Answer names = last->second;
  const std::string name = write.path.substr(end + 1);
  const auto same = [&](const std::string& other) { return lower_case(other) == lower_case(name); };
  if (std::ranges::any_of(names.names, same)) return;
  names.names.push_back(name);
  sort_as_listed(names.names);
  keep(listing, names);
}

void BackgroundFiles::forget_all_of(std::string_view path) {
  const std::lock_guard lock(mutex_);
  ++changes_;
  const std::string_view folder = path.substr(0, path.rfind('\\'));
  for (const std::string& key :
       {reading_of(path), file_at(path), folder_at(path), files_in(folder), folders_in(folder)})
    forget(key);
}

FileError BackgroundFiles::read(std::string_view path, std::string& bytes) {
  Answer answer = ask(reading_of(path), [this, path = std::string(path)] {
    Answer read;
    read.error = inner_.read(path, read.bytes);
    return read;
  });
  bytes = std::move(answer.bytes);
  return answer.error;
}

FileError BackgroundFiles::read_end(std::string_view path, std::size_t count, std::string& bytes) {
  catch_up();
  return inner_.read_end(path, count, bytes);
}

FileError BackgroundFiles::remove(std::string_view path) {
  catch_up();
  forget_all_of(path);
  return inner_.remove(path);
}

FileError BackgroundFiles::copy(std::string_view from, std::string_view to) {
  catch_up();
  forget_all_of(to);
  return inner_.copy(from, to);
}

FileError BackgroundFiles::make_folder(std::string_view path) {
  catch_up();
  forget_all_of(path);
  return inner_.make_folder(path);
}

bool BackgroundFiles::is_file(std::string_view path) {
  return ask(file_at(path), [this, path = std::string(path)] { return Answer{.yes = inner_.is_file(path)}; })
      .yes;
}

bool BackgroundFiles::is_folder(std::string_view path) {
  return ask(folder_at(path),
             [this, path = std::string(path)] { return Answer{.yes = inner_.is_folder(path)}; })
      .yes;
}

std::vector<std::string> BackgroundFiles::folders(std::string_view path) {
  return ask(folders_in(path),
             [this, path = std::string(path)] { return Answer{.names = inner_.folders(path)}; })
      .names;
}

std::vector<std::string> BackgroundFiles::files(std::string_view path) {
  return ask(files_in(path), [this, path = std::string(path)] { return Answer{.names = inner_.files(path)}; })
      .names;
}

std::vector<std::string> BackgroundFiles::drives() {
  return inner_.drives();
}

bool BackgroundFiles::drive_ready(char letter) {
  catch_up();
  return inner_.drive_ready(letter);
}

}  // namespace evac
