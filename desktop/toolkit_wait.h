// Waiting for the toolkit without a step of the toolkit: a tick of the console's beside which nothing came
// costs one wait and no more, and comes at its moment and not at the toolkit's next millisecond.
#pragma once

#include <chrono>
#include <optional>
#include <vector>

struct pollfd;

namespace evac::desktop {

class ToolkitWait {
 public:
  using Moment = std::chrono::steady_clock::time_point;

  ToolkitWait();
  ~ToolkitWait();
  // Whether the toolkit's events come by way of the main context that is waited for here.
  static bool is_possible();
  // Waits until the toolkit has something to do, or for that moment; true when it has.
  bool until(std::optional<Moment> end);

 private:
  std::vector<pollfd> watched_;
};

}  // namespace evac::desktop
