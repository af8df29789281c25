// What the service manager hears of the program: that it has started, that it lives, that it is about to end.
// Without a service manager nothing is sent.
#pragma once

#include <chrono>

namespace evac::desktop {

class Heartbeat {
 public:
  void ready();
  // Sent once a second at most.
  void beat();
  void stopping();

 private:
  std::chrono::steady_clock::time_point last_{};
};

}  // namespace evac::desktop
