// The seam under the outbox: whatever takes bytes to the other end of the line.
#pragma once

#include <cstdint>
#include <optional>
#include <span>

namespace evac {

class LineDevice {
 public:
  virtual ~LineDevice() = default;
  // Never waits. How many of the bytes it took, 0 when it has no room now; none when it is gone.
  virtual std::optional<std::size_t> take(std::span<const std::uint8_t> bytes) = 0;
};

}  // namespace evac
