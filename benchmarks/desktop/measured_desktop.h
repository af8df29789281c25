// The frame of the measuring programs: the desktop on the training set under a folder, with its rack on a
// real pseudo-terminal and sound that keeps time and is not heard.
#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "desktop/desktop.h"

namespace evac::desktop {

using MeasureClock = std::chrono::steady_clock;

double ms_since(MeasureClock::time_point start);

// The machine of the training mode, with sound that is not heard.
HostSetup silent_training(const std::filesystem::path& folder);

class MeasuredDesktop {
 public:
  // The rack works on the thread of the window, as in the training mode; none: somebody else has put it
  // there.
  explicit MeasuredDesktop(const HostSetup& setup, bool with_rack = true);

  Desktop& desktop() { return *desktop_; }
  Form1& form() { return desktop_->console().form1(); }
  FormWindow& window() { return desktop_->windows().window(form()); }
  TrainingLine& line() { return *desktop_->training(); }
  // Milliseconds that the desktop took to its window.
  double start_took() const { return start_took_; }

  void pass(std::chrono::milliseconds time);
  // One step of the loop; the milliseconds that it held the window, without the time in which nothing was to
  // do.
  double step();
  // The window as it is dragged larger and smaller by hand: one step of it whenever the next is due.
  void drag();

 private:
  std::unique_ptr<Desktop> desktop_;
  double start_took_ = 0;
  int wide_ = 0;
  MeasureClock::time_point next_drag_{};
};

// The main function of each: 2 with the usage on standard error when there are too few arguments, else 0.
int measure(int argc, char** argv, std::size_t least_arguments, const char* usage,
            const std::function<void(const std::vector<std::string>&)>& deed);

}  // namespace evac::desktop
