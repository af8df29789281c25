// Whether sound files can be decoded, and how long they are, found out on a thread of its own. The files of
// the message folder are looked at ahead, and again when they change: an alert asks no disk for them, and no
// decoder.
#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <map>
#include <mutex>
#include <optional>
#include <string>

#include "desktop/sound_setup.h"
#include "desktop/worker.h"

namespace evac::desktop {

class SoundProbe {
 public:
  // Finds the file that a path of the system means; an empty path when there is none.
  using Locate = std::function<std::filesystem::path(std::string_view)>;
  struct Found {
    std::filesystem::path file;
    bool ready = false;  // can be decoded, and has a length to be followed by the clock
    double length = 0;   // seconds
  };

  SoundProbe(Locate locate, const SoundSetup& setup);

  // Looks ahead at the files of that folder that are new or have changed; returns at once.
  void look_ahead(const std::string& folder);
  // What was found ahead.
  std::optional<Found> known(const std::string& path) const;
  // Tries the file; none when that takes longer than `patience`.
  std::optional<Found> look(const std::string& path, std::chrono::milliseconds patience);
  // The length by the file's own bytes, without trying it; 0 when they do not tell.
  std::optional<double> length(const std::string& path, std::chrono::milliseconds patience);

 private:
  struct Ahead {
    Found found;
    std::filesystem::file_time_type changed;
    std::uintmax_t size;
  };
  // All that the jobs use, also when the probe has gone.
  struct Shared {
    Locate locate;
    SoundSetup setup;
    std::mutex mutex;
    std::map<std::string, Ahead> ahead;  // by the system's path
  };
  static Found try_file(const Shared& shared, const std::filesystem::path& file);
  static void look_at_folder(Shared& shared, const std::string& folder);

  const std::shared_ptr<Shared> shared_ = std::make_shared<Shared>();
  Worker worker_;
};

}  // namespace evac::desktop
