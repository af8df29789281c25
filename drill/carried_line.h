// The way from the console's port to the other end of the line as a serial device makes it: frames wait in
// the outbox, go into the buffer of a device, and pass on the wire byte by byte.
#pragma once

#include <deque>
#include <functional>

#include "machine/faulty_devices.h"
#include "machine/outbox.h"
#include "model/time.h"

namespace evac::drill {

class CarriedLine : private LineDevice {
 public:
  // `buffer`: the bytes that the device holds.
  explicit CarriedLine(std::size_t buffer);
  CarriedLine(const CarriedLine&) = delete;
  CarriedLine& operator=(const CarriedLine&) = delete;

  void put(std::span<const std::uint8_t, 9> frame, Instant now);
  // All that falls due up to `now`, each byte at its own moment.
  void advance(Instant now);
  // Told of each byte that has passed.
  std::function<void(std::uint8_t, Instant)> arrived = [](std::uint8_t, Instant) {};

  // The device goes, with all that it holds, and comes back empty.
  void lose(Instant now);
  void restore() { faults_.set_lost(false); }
  bool lost() const { return faults_.lost(); }
  // What keeps the outbox from the device; what the device holds goes on.
  FaultyLine& faults() { return faults_; }
  // The process is gone, and with it what waits.
  void forget();

  // Nothing waits and nothing is on its way.
  bool idle() const { return device_.empty() && !outbox_.next(); }
  // Frames that have not passed yet, and how long the line needs for them.
  int frames_waiting(Instant now) const;
  std::chrono::milliseconds backlog(Instant now) const;

 private:
  std::optional<std::size_t> take(std::span<const std::uint8_t> bytes) override;

  const std::size_t buffer_;
  Outbox outbox_;
  std::deque<std::uint8_t> device_;
  FaultyLine faults_{*this};
  Outbox::Moment at_{}, wire_free_{};  // up to which all has been done; when the byte on the wire has passed
};

}  // namespace evac::drill
