// Media, digital-input cards and the device of the line with faults, in front of any others: for tests,
// drills and the simulation.
#pragma once

#include <algorithm>
#include <array>
#include <chrono>
#include <functional>
#include <map>
#include <utility>

#include "machine/line_device.h"
#include "platform/machine.h"

namespace evac {

using Hold = std::function<void(std::chrono::milliseconds)>;

class FaultyMedia : public Media {
 public:
  // `hold` lets time pass in the midst of a call.
  FaultyMedia(Media& inner, Hold hold) : inner_(inner), hold_(std::move(hold)) {}

  // No file can be opened.
  void set_silent(bool on) { silent_ = on; }
  // The next opening of a file takes so long.
  void stall_next(std::chrono::milliseconds time) { stall_ = time; }

  void set_file(std::string_view path) override { inner_.set_file(path); }
  int ready_state() override {
    if (const auto time = std::exchange(stall_, {}); time.count() > 0) hold_(time);
    return silent_ ? 0 : inner_.ready_state();
  }
  void play() override { inner_.play(); }
  void hold() override { inner_.hold(); }
  void stop() override { inner_.stop(); }
  double duration() override { return silent_ ? 0 : inner_.duration(); }
  double position() override { return inner_.position(); }
  void seek(double seconds) override { inner_.seek(seconds); }
  void set_volume(int hundredths) override { inner_.set_volume(hundredths); }

 private:
  Media& inner_;
  const Hold hold_;
  bool silent_ = false;
  std::chrono::milliseconds stall_{0};
};

class FaultyCards : public Cards {
 public:
  FaultyCards(Cards& inner, Hold hold) : inner_(inner), hold_(std::move(hold)) {}

  // Card 0 or 1. Readings of it fail, and give the word last read.
  void set_failing(int number, bool on) { cards_.at(static_cast<std::size_t>(number)).failing = on; }
  // The next reading of it takes so long.
  void stall_next(int number, std::chrono::milliseconds time) {
    cards_.at(static_cast<std::size_t>(number)).stall = time;
  }

  std::int16_t register_card(int type, int number) override {
    const std::int16_t handle = inner_.register_card(type, number);
    cards_.at(static_cast<std::size_t>(number)).last = {};
    if (handle >= 0) numbers_[handle] = static_cast<std::size_t>(number);
    return handle;
  }
  void release_card(std::int16_t handle) override { inner_.release_card(handle); }
  bool read_port(std::int16_t handle, int port, std::int32_t& word) override {
    const auto number = numbers_.find(handle);
    if (number == numbers_.end()) return inner_.read_port(handle, port, word);
    Card& card = cards_[number->second];
    if (const auto time = std::exchange(card.stall, {}); time.count() > 0) hold_(time);
    std::int32_t& last = card.last.at(static_cast<std::size_t>(port));
    const bool read = !card.failing && inner_.read_port(handle, port, last);
    word = last;
    return read;
  }

 private:
  struct Card {
    bool failing = false;
    std::chrono::milliseconds stall{0};
    std::array<std::int32_t, 2> last{};  // the words last read
  };
  Cards& inner_;
  const Hold hold_;
  std::array<Card, 2> cards_{};
  std::map<std::int16_t, std::size_t> numbers_;  // of the cards, by handle
};

class FaultyLine : public LineDevice {
 public:
  explicit FaultyLine(LineDevice& inner) : inner_(inner) {}

  // It is gone.
  void set_lost(bool on) { lost_ = on; }
  bool lost() const { return lost_; }
  // It has no room for any byte.
  void set_stalled(bool on) { stalled_ = on; }
  // It takes no more than so many bytes with one call.
  void set_most_at_once(std::size_t bytes) { most_at_once_ = bytes; }

  std::optional<std::size_t> take(std::span<const std::uint8_t> bytes) override {
    if (lost_) return std::nullopt;
    if (stalled_) return 0;
    return inner_.take(bytes.first(std::min(bytes.size(), most_at_once_)));
  }

 private:
  LineDevice& inner_;
  bool lost_ = false, stalled_ = false;
  std::size_t most_at_once_ = static_cast<std::size_t>(-1);
};

}  // namespace evac
