#include "desktop/sound_probe.h"

#include <algorithm>

#include "desktop/gst_parts.h"
#include "desktop/mp3_length.h"
#include "desktop/wave_length.h"
#include "model/time.h"

namespace evac::desktop {
namespace {

namespace fs = std::filesystem;

double length_by_bytes(const fs::path& file) {
  const double length = wave_length(file);
  return length > 0 ? length : mp3_length(file);
}

double at_most_a_day(double length) {
  return std::min(length, static_cast<double>(kSecondsPerDay));
}

bool is_file(const fs::path& file) {
  std::error_code error;
  return fs::is_regular_file(file, error);
}

}  // namespace

SoundProbe::SoundProbe(Locate locate, const SoundSetup& setup) {
  start_gstreamer();
  shared_->locate = std::move(locate);
  shared_->setup = setup;
}

SoundProbe::Found SoundProbe::try_file(const Shared& shared, const fs::path& file) {
  Found found{file};
  if (!is_file(file)) return found;
  const PlayBin trial = make_player(file, shared.setup, fake_sink());
  if (!trial || !preroll(trial.get())) return found;
  const double own = length_by_bytes(file);
  found.length = at_most_a_day(own > 0 ? own : length_of(trial.get()));
  // What has no length can't be followed by the clock: an alert would start it again every second.
  found.ready = found.length > 0;
  return found;
}

std::optional<SoundProbe::Found> SoundProbe::known(const std::string& path) const {
  const std::lock_guard lock(shared_->mutex);
  const auto at = shared_->ahead.find(path);
  return at == shared_->ahead.end() ? std::nullopt : std::optional(at->second.found);
}

std::optional<SoundProbe::Found> SoundProbe::look(const std::string& path,
                                                  std::chrono::milliseconds patience) {
  return worker_.ask<Found>([shared = shared_, path] { return try_file(*shared, shared->locate(path)); },
                            patience);
}

std::optional<double> SoundProbe::length(const std::string& path, std::chrono::milliseconds patience) {
  return worker_.ask<double>(
      [shared = shared_, path] {
        const fs::path file = shared->locate(path);
        return is_file(file) ? at_most_a_day(length_by_bytes(file)) : 0;
      },
      patience);
}

void SoundProbe::look_ahead(const std::string& folder) {
  worker_.post([shared = shared_, folder] { look_at_folder(*shared, folder); });
}

void SoundProbe::look_at_folder(Shared& shared, const std::string& folder) {
  std::map<std::string, Ahead> before;
  {
    const std::lock_guard lock(shared.mutex);
    before = shared.ahead;
  }
  std::map<std::string, Ahead> now;
  std::error_code error;
  for (fs::directory_iterator at(shared.locate(folder), error), last; !error && at != last;
       at.increment(error)) {
    std::error_code unknown;
    if (!at->is_regular_file(unknown)) continue;
    const std::string path = folder + '\\' + at->path().filename().string();
    const auto changed = at->last_write_time(unknown);
    const auto size = at->file_size(unknown);
    const auto known = before.find(path);
    const bool same = known != before.end() && known->second.changed == changed && known->second.size == size;
    now[path] = same ? known->second : Ahead{try_file(shared, at->path()), changed, size};
  }
  const std::lock_guard lock(shared.mutex);
  shared.ahead = std::move(now);
}

}  // namespace evac::desktop
