// The virtual rack on a thread of its own, as a real one works beside the console: whatever the console is
// busy with, the other end of the line hears and answers in its own time.
#pragma once

#include <chrono>
#include <functional>
#include <mutex>
#include <thread>

#include "rack/pty.h"
#include "rack/rack.h"

namespace evac::desktop {

class RackApart {
 public:
  // Plugged in at once, under that name. Throws std::runtime_error when there is no pseudo-terminal.
  explicit RackApart(const std::string& name);
  ~RackApart();
  RackApart(const RackApart&) = delete;
  RackApart& operator=(const RackApart&) = delete;

  void change(const std::function<void(rack::Rack&)>& what);
  // What its thread has used of a core.
  double processor_seconds();

 private:
  void work();
  rack::Time now() const;
  void wake();

  const std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
  std::mutex mutex_;  // of the rack and its line
  rack::PseudoTerminal line_;
  rack::Rack rack_;
  const int wake_;
  bool done_ = false;
  std::thread thread_;
};

}  // namespace evac::desktop
