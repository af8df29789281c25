// The way from the console's port to the other end of the line as a serial device makes it: frames wait in
// the outbox, go into the buffer of a device, and pass on the wire byte by byte. The device may take nothing
// for a while, or little at a time, or go with all that it holds.
#pragma once

#include <deque>
#include <functional>

#include "machine/outbox.h"
#include "model/time.h"

namespace evac::drill {

class CarriedLine {
 public:
  // `buffer`: the bytes that the device holds.
  explicit CarriedLine(std::size_t buffer);

  void put(std::span<const std::uint8_t, 9> frame, Instant now);
  // All that falls due up to `now`, each byte at its own moment.
  void advance(Instant now);
  // Told of each byte that has passed.
  std::function<void(std::uint8_t, Instant)> arrived = [](std::uint8_t, Instant) {};

  // The device goes, and comes back empty.
  void lose(Instant now);
  void restore() { lost_ = false; }
  bool lost() const { return lost_; }
  // The device takes no byte; what it holds goes on.
  void set_stalled(bool on) { stalled_ = on; }
  // It takes no more than so many bytes with one write.
  void set_most_at_once(std::size_t bytes) { most_at_once_ = bytes; }
  // The process is gone, and with it what waits.
  void forget();

  // Nothing waits and nothing is on its way.
  bool idle() const { return device_.empty() && !outbox_.next(); }
  // Frames that have not passed yet, and how long the line needs for them.
  int frames_waiting(Instant now) const;
  std::chrono::milliseconds backlog(Instant now) const;

 private:
  void feed(Outbox::Moment now);

  const std::size_t buffer_;
  Outbox outbox_;
  std::deque<std::uint8_t> device_;
  Outbox::Moment at_{}, wire_free_{};  // up to which all has been done; when the byte on the wire has passed
  bool lost_ = false, stalled_ = false;
  std::size_t most_at_once_ = static_cast<std::size_t>(-1);
};

}  // namespace evac::drill
