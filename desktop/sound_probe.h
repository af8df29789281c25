// Whether sound files can be decoded, and how long they are, found out on threads of their own. What is about
// to be needed is looked at ahead, so that a press asks no disk for it, and no decoder.
#pragma once

#include <chrono>
#include <condition_variable>
#include <filesystem>
#include <functional>
#include <map>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "desktop/mp3_length.h"
#include "desktop/sound_setup.h"
#include "desktop/worker.h"
#include "machine/patience.h"

namespace evac::desktop {

class SoundProbe {
 public:
  // Finds the file that a path of the system means; an empty path when there is none.
  using Locate = std::function<std::filesystem::path(std::string_view)>;
  struct Found {
    std::filesystem::path file;
    bool ready = false;        // can be decoded, and has a length to be followed by the clock
    double length = 0;         // seconds
    Sure sure = Sure::kExact;  // of it
    bool tried = false;        // by a decoder; until then what has a length counts as ready
  };
  // What is asked for: a length, by the file's own bytes where they tell it; or that it was tried.
  enum class Want { kLength, kTried };

  SoundProbe(Locate locate, const SoundSetup& setup);
  // Calls off what was only to be looked at ahead.
  ~SoundProbe();

  // These three return at once. All files of that folder, in full, those that are new or have changed:
  void look_ahead(const std::string& folder);
  // The tracks that are needed next, in full, the first one first; in place of those told before.
  void look_soon(std::vector<std::string> paths);
  // The lengths of a whole list, by and by, each by a few blocks of its file.
  void look_through(std::vector<std::string> paths);

  // What was found so far.
  std::optional<Found> known(const std::string& path) const;
  // Asks for it. What is known by then when that takes longer than `most`, or than there is `patience`; and
  // nobody waits twice for a file that does not answer.
  std::optional<Found> look(const std::string& path, Want want, std::chrono::milliseconds most,
                            Patience* patience = nullptr);
  // Finds the file when it is called, however long that takes.
  std::function<std::filesystem::path()> finder(const std::string& path) const;

 private:
  struct Entry {
    Found found;
    std::filesystem::file_time_type changed = {};
    std::uintmax_t size = 0;
    // The file is still the one that the other tells of.
    bool is_of(const Entry& other) const {
      return changed == other.changed && size == other.size && found.file == other.found.file;
    }
  };
  // All that the jobs use, also when the probe has gone.
  struct Shared {
    Locate locate;
    SoundSetup setup;
    mutable std::mutex mutex;
    std::condition_variable answered;
    std::map<std::string, Entry> entries;  // by the system's path
    std::vector<std::string> soon;
    // How often each was told; a job of an older telling breaks off.
    std::uint64_t soon_told = 0, list_told = 0;
    std::set<std::string> folders;  // that wait to be looked at
  };
  static std::optional<Found> known(const Shared& shared, const std::string& path);
  // The steps of finding out; each leaves alone what is known of the file as it is now.
  static Entry look_at(Shared& shared, const std::string& path);
  static void try_it(Shared& shared, const std::string& path, Entry& entry);
  static void walk(Shared& shared, const std::string& path, Entry& entry,
                   const std::function<bool()>& goes_on);
  static void note(Shared& shared, const std::string& path, Entry& entry);
  static void look_at_folder(Shared& shared, const std::string& folder);
  static void look_at_soon(Shared& shared, std::uint64_t told);

  const std::shared_ptr<Shared> shared_ = std::make_shared<Shared>();
  std::shared_ptr<bool> overdue_;  // the last question that got no answer in time: whether it has one now
  Worker asked_, soon_, through_;
};

}  // namespace evac::desktop
