#include "desktop/training_line.h"

#include <sys/timerfd.h>
#include <unistd.h>

#include <algorithm>
#include <stdexcept>

namespace evac::desktop {

TrainingLine::TrainingLine(const std::string& name)
    : line_(name),
      rack_([this](std::span<const std::uint8_t> bytes) { line_.write(bytes); }),
      due_(timerfd_create(CLOCK_MONOTONIC, TFD_NONBLOCK | TFD_CLOEXEC)),
      due_watch_(due_, QSocketNotifier::Read) {
  if (due_ < 0) throw std::runtime_error("there is no timer for the training line");
  connect(&due_watch_, &QSocketNotifier::activated, this, &TrainingLine::work);
  rack_.passed = [this](const rack::Passed& frame) { emit passed(frame); };
}

TrainingLine::~TrainingLine() {
  due_watch_.setEnabled(false);
  ::close(due_);
}

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
  itimerspec alarm{};  // none
  if (const auto due = rack_.next_due()) {
    constexpr std::chrono::nanoseconds kAtOnce{1};
    const auto left = std::max(std::chrono::nanoseconds(*due - now()), kAtOnce);
    const auto seconds = std::chrono::floor<std::chrono::seconds>(left);
    alarm.it_value = {.tv_sec = seconds.count(), .tv_nsec = (left - seconds).count()};
  }
  ::timerfd_settime(due_, 0, &alarm, nullptr);  // which also takes the last one back
}

}  // namespace evac::desktop
