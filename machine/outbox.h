// The frames on their way to the line: they wait here, and go to the device only as fast as the line carries
// them, so that a device with a small buffer, or one that goes and comes back, loses none. Knows no device
// and no clock: its owner tells the time and hands the bytes over.
#pragma once

#include <chrono>
#include <cstdint>
#include <deque>
#include <optional>
#include <span>

#include "machine/line_device.h"
#include "rack/frame.h"

namespace evac {

class Outbox {
 public:
  using Clock = std::chrono::steady_clock;
  using Moment = Clock::time_point;

  // How far the device is kept ahead of the line, and what of it may have been lost with the line.
  static constexpr std::chrono::milliseconds kAhead{100}, kRepeated{200};
  // With more than this waiting, frames that later ones override are dropped.
  static constexpr std::chrono::seconds kLong{2};

  // The time of one character on the line; with none the device takes all at once.
  void set_character(std::chrono::nanoseconds time) { character_ = time; }

  // One frame, to go behind those that wait. An answer to a poll passes them, and no two answers go in a row
  // while others wait, whichever came first.
  void put(std::span<const std::uint8_t, 9> bytes, Moment now);
  // What may go to the device now, the rest of one frame; nothing when none waits or the device has enough.
  std::span<const std::uint8_t> ready(Moment now) const;
  // The device took that many of them.
  void taken(std::size_t count, Moment now);
  // Both, until the device is far enough ahead, has no room, or is gone.
  enum class HandedOver { kEnough, kFull, kGone };
  HandedOver hand_over(LineDevice& device, Moment now);
  // When there is more to hand over; none when no frame waits.
  std::optional<Moment> next() const;
  // The line went: what may have been lost with it goes again, whole; answers to polls are too late.
  void line_lost(Moment now);

  // Not carried by the line yet: frames here and with the device, and the time that they take.
  int frames_waiting(Moment now) const;
  std::chrono::nanoseconds backlog(Moment now) const;
  // Since the start: frames that later ones made needless.
  int dropped() const { return dropped_; }

 private:
  // What a frame sets: frames of one kind and number override each other.
  struct Subject {
    enum Kind {
      kNone,
      kZone,
      kTerminal,
      kOutlets,
      kMatrix,
      kAlarm,
      kStop,
      kAlertStart,
      kQuery,
      kAnswer,
      kClock
    };
    Kind kind = kNone;
    int number = 0;
    bool operator==(const Subject&) const = default;
  };
  struct Waiting {
    rack::Frame frame;
    Subject subject;
    bool goes_on;  // belongs to the frame before it: they go, and are dropped, together
  };
  struct Handed {
    Moment when;
    Waiting frame;
  };
  static bool is_answer(const Waiting& frame) {
    return frame.subject.kind == Subject::kAnswer || frame.subject.kind == Subject::kClock;
  }
  std::deque<Waiting>::iterator place_of_answer();
  std::deque<Waiting>::iterator behind_last_other();
  std::deque<Waiting>::iterator place_behind_others(bool goes_on);
  static Subject subject_of(const rack::Frame& frame);
  bool continues_the_last(const Subject& subject) const;
  void drop_overridden(const Subject& by);
  std::chrono::nanoseconds time_of_frame() const;

  std::chrono::nanoseconds character_{0};
  std::deque<Waiting> waiting_;
  std::size_t taken_of_first_ = 0;  // bytes
  std::deque<Handed> handed_;       // the last ones
  bool answered_last_ = false;      // the last of them was an answer
  Moment free_{};                   // when the line has carried all that the device was handed
  int dropped_ = 0;
};

}  // namespace evac
