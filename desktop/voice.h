// One playing of one file into the sound device, worked by a worker's jobs alone: each of its steps may stall
// with the device. What it knows of itself can be asked at any time.
#pragma once

#include <atomic>
#include <chrono>
#include <functional>
#include <mutex>

#include "desktop/gst_parts.h"

namespace evac::desktop {

// What went wrong with the sound, told by any thread.
class Trouble {
 public:
  void tell(const std::string& text) {
    const std::lock_guard lock(mutex_);
    text_ = text;
  }
  std::string text() const {
    const std::lock_guard lock(mutex_);
    return text_;
  }

 private:
  mutable std::mutex mutex_;
  std::string text_;
};

class Voice {
 public:
  // `find` gives the file, and is called by the worker: it may stall with the disk.
  Voice(std::function<std::filesystem::path()> find, const SoundSetup& setup, double volume, double start,
        std::shared_ptr<Trouble> trouble)
      : find_(std::move(find)),
        setup_(setup),
        trouble_(std::move(trouble)),
        volume_(volume),
        start_(start),
        at_(start) {}
  Voice(const Voice&) = delete;
  Voice& operator=(const Voice&) = delete;

  // Of the worker: opens the device at the first time.
  void play();
  void pause();
  void jump(double seconds);
  void set_volume(double linear);
  void close();
  // Takes note of the position.
  void look();

  // Of anyone: the position in seconds, by what was noted last and the time since.
  double position() const;
  // Stands at that position from now on, whatever the worker is still busy with.
  void stand_at(double seconds);
  bool ended() const { return ended_; }
  // It was heard.
  bool began() const { return began_; }
  // The last note is that old, so that a new one is worth a job.
  bool wants_look() const;

 private:
  using Clock = std::chrono::steady_clock;
  void take_message(GstMessage* message);
  void note(double position, bool moving);

  const std::function<std::filesystem::path()> find_;
  const SoundSetup setup_;
  const std::shared_ptr<Trouble> trouble_;
  double volume_, start_;
  PlayBin player_;  // holds the device
  std::atomic<bool> ended_ = false, began_ = false;
  std::atomic<bool> stands_ = false;  // the position is the one told, not the device's

  mutable std::mutex mutex_;
  double at_;  // at the moment `noted_`
  Clock::time_point noted_{};
  bool moving_ = false;
};

}  // namespace evac::desktop
