// Alerts that the engine resets and starts again in quick succession: contacts that bounce, or zones that
// reset one another.
#pragma once

#include <algorithm>
#include <array>
#include <optional>

#include "model/system_model.h"
#include "model/time.h"

namespace evac {

class RestartLog {
 public:
  // The engine has reset an alert.
  void reset(Instant now) {
    last_reset_ = now;
    ++resets_;
  }
  // It has started the zone's; counted once for each reset before it.
  void started(int zone, Instant now) {
    Zone& log = zones_[zone];
    const bool after_reset = last_reset_ && now - *last_reset_ <= kWindow && log.counted_reset != resets_;
    log.counted_reset = resets_;
    if (!after_reset) return;
    std::rotate(log.times.begin(), log.times.begin() + 1, log.times.end());
    log.times.back() = last_counted_ = now;
  }
  // Whether the zone's alert was reset and then started so often within the time that just passed.
  bool restarting(int zone, Instant now) const {
    const auto& oldest = zones_[zone].times.front();
    return oldest && now - *oldest <= kWindow;
  }
  // Whether no zone's is.
  bool quiet(Instant now) const { return !last_counted_ || now - *last_counted_ > kWindow; }

 private:
  static constexpr std::size_t kOften = 3;
  static constexpr std::chrono::seconds kWindow{5};

  struct Zone {
    std::array<std::optional<Instant>, kOften> times;  // of the last starts after a reset, the oldest first
    int counted_reset = 0;
  };
  BoundedArray<Zone, 1, kZones> zones_;
  std::optional<Instant> last_reset_, last_counted_;
  int resets_ = 0;
};

}  // namespace evac
