// Media that keep time and make no sound: a file that is there plays for as long as its header says.
#pragma once

#include <chrono>
#include <optional>
#include <string>

#include "platform/files.h"
#include "platform/machine.h"

namespace evac::desktop {

class TimedMedia : public Media {
 public:
  explicit TimedMedia(Files& files) : files_(files) {}
  void set_file(std::string_view path) override;
  int ready_state() override { return length_ > 0 ? 1 : 0; }
  void play() override;
  void hold() override;
  void stop() override;
  double duration() override { return length_; }
  double position() override;
  void seek(double seconds) override;
  void set_volume(int) override {}

 private:
  using Clock = std::chrono::steady_clock;
  Files& files_;
  double length_ = 0, position_ = 0;
  std::optional<Clock::time_point> playing_since_;
};

}  // namespace evac::desktop
