#include "desktop/training_line.h"

#include <stdexcept>

namespace evac::desktop {

TrainingLine::TrainingLine(const std::string& name)
    : line_(name), rack_([this](std::span<const std::uint8_t> bytes) { line_.write(bytes); }) {
  due_.setSingleShot(true);
  due_.setTimerType(Qt::PreciseTimer);
  connect(&due_, &QTimer::timeout, this, &TrainingLine::work);
  rack_.passed = [this](const rack::Passed& frame) { emit passed(frame); };
}

TrainingLine::~TrainingLine() = default;

rack::Time TrainingLine::now() const {
  return std::chrono::floor<rack::Time>(std::chrono::steady_clock::now() - start_);
}

void TrainingLine::plug() {
  if (plugged()) return;
  if (const auto reason = line_.open(); !reason.empty()) throw std::runtime_error(reason);
  readable_ = std::make_unique<QSocketNotifier>(line_.descriptor(), QSocketNotifier::Read);
  connect(readable_.get(), &QSocketNotifier::activated, this, &TrainingLine::read);
  work();
}

void TrainingLine::unplug() {
  readable_.reset();
  line_.close();
  rack_.lose_line();
}

void TrainingLine::change(const std::function<void(rack::Rack&)>& what) {
  rack_.advance(now());
  what(rack_);
  work();
}

void TrainingLine::read() {
  const auto bytes = line_.read();
  rack_.advance(now());
  rack_.receive(bytes);
  work();
}

void TrainingLine::work() {
  rack_.advance(now());
  if (const auto due = rack_.next_due())
    due_.start(std::chrono::ceil<std::chrono::milliseconds>(std::max(*due - now(), rack::Time(0))));
  else
    due_.stop();
}

}  // namespace evac::desktop
