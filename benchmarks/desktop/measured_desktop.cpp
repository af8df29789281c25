#include "measured_desktop.h"

#include <QApplication>
#include <algorithm>
#include <cstdio>
#include <iostream>

#include "desktop/view/dress.h"

namespace evac::desktop {
namespace {

using std::chrono::milliseconds;

constexpr milliseconds kFrameOfDrag{16};  // how often a window manager resizes a window that is dragged

}  // namespace

double ms_since(MeasureClock::time_point start) {
  return std::chrono::duration<double, std::milli>(MeasureClock::now() - start).count();
}

HostSetup silent_training(const std::filesystem::path& folder) {
  HostSetup setup = training_setup(folder);
  setup.sound_sink = "fake";
  return setup;
}

MeasuredDesktop::MeasuredDesktop(const HostSetup& setup, bool with_rack) {
  desktop_ = std::make_unique<Desktop>(
      setup, with_rack ? std::make_unique<TrainingLine>(setup.ports.at(1)) : nullptr);
  const auto start = MeasureClock::now();
  desktop_->start();
  start_took_ = ms_since(start);
}

void MeasuredDesktop::pass(milliseconds time) {
  const auto end = MeasureClock::now() + time;
  while (MeasureClock::now() < end) desktop_->pump();
}

double MeasuredDesktop::step() {
  const auto start = MeasureClock::now();
  const auto due = desktop_->loop().next_due();
  desktop_->pump();
  const double taken = ms_since(start);
  if (!due) return taken;
  const std::chrono::duration<double, std::milli> waited = due->time_since_epoch() - start.time_since_epoch();
  // A step that waits is cut by the next tick of 20 ms, so only what lies above counts as a hold.
  return std::max(0.0, taken - std::max(0.0, waited.count()));
}

void MeasuredDesktop::drag() {
  if (MeasureClock::now() < next_drag_) return;
  next_drag_ = MeasureClock::now() + kFrameOfDrag;
  wide_ = (wide_ + 7) % 140;
  window().resize(1280 + wide_, 760 + wide_ / 3);
}

int measure(int argc, char** argv, std::size_t least_arguments, const char* usage,
            const std::function<void(const std::vector<std::string>&)>& deed) {
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  dress_application();
  const std::vector<std::string> arguments(argv + 1, argv + argc);
  if (arguments.size() < least_arguments) {
    std::cerr << "usage: " << usage << '\n';
    return 2;
  }
  std::setvbuf(stdout, nullptr, _IOLBF, 0);
  deed(arguments);
  return 0;
}

}  // namespace evac::desktop
