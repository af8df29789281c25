#include "desktop/sound_probe.h"

#include <sys/resource.h>

#include <algorithm>

#include "desktop/gst_parts.h"
#include "desktop/wave_length.h"
#include "model/time.h"

namespace evac::desktop {
namespace {

namespace fs = std::filesystem;

constexpr std::chrono::milliseconds kLongestWalk{400};  // that somebody waits for
constexpr std::size_t kMostKnown = 50'000;              // files
constexpr int kLeastUrgent = 19;

double at_most_a_day(double length) {
  return std::min(length, static_cast<double>(kSecondsPerDay));
}

}  // namespace

SoundProbe::SoundProbe(Locate locate, const SoundSetup& setup) {
  start_gstreamer();
  shared_->locate = std::move(locate);
  shared_->setup = setup;
}

SoundProbe::~SoundProbe() {
  const std::lock_guard lock(shared_->mutex);
  ++shared_->soon_told;
  ++shared_->list_told;
}

// Another job may have got further with the same file meanwhile.
void SoundProbe::note(Shared& shared, const std::string& path, Entry& entry) {
  const std::lock_guard lock(shared.mutex);
  if (shared.entries.size() >= kMostKnown) shared.entries.clear();
  const auto before = shared.entries.find(path);
  if (before != shared.entries.end() && before->second.is_of(entry)) {
    const Found& known = before->second.found;
    Found& found = entry.found;
    if (known.sure > found.sure) {
      found.length = known.length;
      found.sure = known.sure;
    }
    if (known.tried && !found.tried) {
      found.ready = known.ready;
      found.tried = true;
    }
  }
  shared.entries[path] = entry;
  shared.answered.notify_all();
}

SoundProbe::Entry SoundProbe::look_at(Shared& shared, const std::string& path) {
  Entry entry{.found = {.file = shared.locate(path)}};
  std::error_code error;
  const fs::path& file = entry.found.file;
  if (fs::is_regular_file(file, error)) {
    entry.changed = fs::last_write_time(file, error);
    entry.size = fs::file_size(file, error);
    {
      const std::lock_guard lock(shared.mutex);
      const auto known = shared.entries.find(path);
      if (known != shared.entries.end() && known->second.is_of(entry)) return known->second;
    }
    const double by_header = wave_length(file);
    const SoundLength length = by_header > 0 ? SoundLength{by_header} : quick_mp3_length(file);
    entry.found.length = at_most_a_day(length.seconds);
    entry.found.ready = length.seconds > 0;
    entry.found.sure = length.seconds > 0 ? length.sure : Sure::kGuess;
  } else {
    entry.found.tried = true;
  }
  note(shared, path, entry);
  return entry;
}

void SoundProbe::try_it(Shared& shared, const std::string& path, Entry& entry) {
  Found& found = entry.found;
  if (found.tried) return;
  const PlayBin trial = make_player(found.file, shared.setup, fake_sink());
  const bool decoded = trial && preroll(trial.get());
  if (found.length <= 0) {
    found.length = decoded ? at_most_a_day(length_of(trial.get())) : 0;
    found.sure = Sure::kExact;
  }
  // What has no length can't be followed by the clock: an alert would start it again every second.
  found.ready = decoded && found.length > 0;
  found.tried = true;
  note(shared, path, entry);
}

void SoundProbe::walk(Shared& shared, const std::string& path, Entry& entry,
                      const std::function<bool()>& goes_on) {
  Found& found = entry.found;
  if (found.sure == Sure::kExact || found.length <= 0) return;
  const auto length = walked_mp3_length(found.file, goes_on);
  if (!length) return;
  if (*length > 0) found.length = at_most_a_day(*length);
  found.sure = Sure::kExact;
  note(shared, path, entry);
}

std::optional<SoundProbe::Found> SoundProbe::known(const Shared& shared, const std::string& path) {
  const auto at = shared.entries.find(path);
  if (at == shared.entries.end()) return {};
  const Found& found = at->second.found;
  return found.tried || found.length > 0 ? std::optional(found) : std::nullopt;
}

std::optional<SoundProbe::Found> SoundProbe::known(const std::string& path) const {
  const std::lock_guard lock(shared_->mutex);
  return known(*shared_, path);
}

std::optional<SoundProbe::Found> SoundProbe::look(const std::string& path, Want want,
                                                  std::chrono::milliseconds most, Patience* patience) {
  std::unique_lock lock(shared_->mutex);
  if (overdue_ && !*overdue_) return known(*shared_, path);
  const auto done = std::make_shared<bool>(false);
  lock.unlock();
  asked_.post([shared = shared_, path, want, done] {
    Entry entry = look_at(*shared, path);
    if (want == Want::kTried || entry.found.length <= 0) try_it(*shared, path, entry);
    if (want == Want::kLength && entry.found.sure == Sure::kGuess) {
      const auto end = std::chrono::steady_clock::now() + kLongestWalk;
      walk(*shared, path, entry, [end] { return std::chrono::steady_clock::now() < end; });
    }
    const std::lock_guard lock(shared->mutex);
    *done = true;
    shared->answered.notify_all();
  });
  lock.lock();
  const auto answered = [&] { return *done; };
  const bool in_time = patience ? patience->wait(shared_->answered, lock, answered, most)
                                : shared_->answered.wait_for(lock, most, answered);
  if (!in_time) overdue_ = done;
  return known(*shared_, path);
}

std::function<fs::path()> SoundProbe::finder(const std::string& path) const {
  return [shared = shared_, path] { return shared->locate(path); };
}

void SoundProbe::look_ahead(const std::string& folder) {
  const std::lock_guard lock(shared_->mutex);
  // While a disk hangs, what is asked again and again must not heap up.
  if (!shared_->folders.insert(folder).second) return;
  through_.post([shared = shared_, folder] { look_at_folder(*shared, folder); });
}

void SoundProbe::look_at_folder(Shared& shared, const std::string& folder) {
  {
    const std::lock_guard lock(shared.mutex);
    shared.folders.erase(folder);
  }
  std::set<std::string> there;
  std::error_code error;
  for (fs::directory_iterator at(shared.locate(folder), error), last; !error && at != last;
       at.increment(error)) {
    std::error_code unknown;
    if (!at->is_regular_file(unknown)) continue;
    const std::string path = folder + '\\' + at->path().filename().string();
    there.insert(path);
    Entry entry = look_at(shared, path);
    try_it(shared, path, entry);
    walk(shared, path, entry, [] { return true; });
  }
  // A disk that fails to list its files has not lost them.
  if (error && error != std::errc::no_such_file_or_directory) return;
  const std::lock_guard lock(shared.mutex);
  std::erase_if(shared.entries, [&](const auto& entry) {
    return entry.first.starts_with(folder + '\\') && !there.contains(entry.first);
  });
}

void SoundProbe::look_soon(std::vector<std::string> paths) {
  const std::lock_guard lock(shared_->mutex);
  shared_->soon = std::move(paths);
  soon_.post([shared = shared_, told = ++shared_->soon_told] { look_at_soon(*shared, told); });
}

void SoundProbe::look_at_soon(Shared& shared, std::uint64_t told) {
  const auto wanted = [&] {
    const std::lock_guard lock(shared.mutex);
    return shared.soon_told == told;
  };
  std::unique_lock lock(shared.mutex);
  const auto paths = shared.soon;
  lock.unlock();
  for (const std::string& path : paths) {
    if (!wanted()) return;
    Entry entry = look_at(shared, path);
    try_it(shared, path, entry);
    walk(shared, path, entry, wanted);
  }
}

void SoundProbe::look_through(std::vector<std::string> paths) {
  const std::lock_guard lock(shared_->mutex);
  through_.post([shared = shared_, told = ++shared_->list_told, paths = std::move(paths)] {
    // Of this thread: nobody waits for it.
    (void)::setpriority(PRIO_PROCESS, 0, kLeastUrgent);
    for (const std::string& path : paths) {
      {
        const std::lock_guard lock(shared->mutex);
        if (shared->list_told != told) return;
      }
      (void)look_at(*shared, path);
    }
  });
}

}  // namespace evac::desktop
