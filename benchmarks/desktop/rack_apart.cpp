#include "rack_apart.h"

#include <poll.h>
#include <pthread.h>
#include <sys/eventfd.h>
#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <stdexcept>

namespace evac::desktop {

RackApart::RackApart(const std::string& name)
    : line_(name),
      rack_([this](std::span<const std::uint8_t> bytes) { line_.write(bytes); }),
      wake_(::eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC)) {
  if (const auto reason = line_.open(); !reason.empty()) throw std::runtime_error(reason);
  thread_ = std::thread([this] { work(); });
}

RackApart::~RackApart() {
  {
    const std::lock_guard lock(mutex_);
    done_ = true;
  }
  wake();
  thread_.join();
  ::close(wake_);
}

rack::Time RackApart::now() const {
  return std::chrono::floor<rack::Time>(std::chrono::steady_clock::now() - start_);
}

void RackApart::wake() {
  ::eventfd_write(wake_, 1);
}

void RackApart::change(const std::function<void(rack::Rack&)>& what) {
  {
    const std::lock_guard lock(mutex_);
    rack_.advance(now());
    what(rack_);
  }
  wake();
}

double RackApart::processor_seconds() {
  clockid_t clock{};
  timespec used{};
  ::pthread_getcpuclockid(thread_.native_handle(), &clock);
  ::clock_gettime(clock, &used);
  return static_cast<double>(used.tv_sec) + static_cast<double>(used.tv_nsec) / 1e9;
}

void RackApart::work() {
  std::unique_lock lock(mutex_);
  while (!done_) {
    const auto bytes = line_.read();
    rack_.advance(now());
    rack_.receive(bytes);
    const auto due = rack_.next_due();
    const std::chrono::nanoseconds left = due ? std::max(*due - now(), rack::Time{}) : rack::Time{};
    const auto seconds = std::chrono::floor<std::chrono::seconds>(left);
    const timespec wait{.tv_sec = seconds.count(), .tv_nsec = (left - seconds).count()};
    pollfd watched[] = {{line_.descriptor(), POLLIN, 0}, {wake_, POLLIN, 0}};
    lock.unlock();
    ::ppoll(watched, std::size(watched), due ? &wait : nullptr, nullptr);
    eventfd_t ignored = 0;
    ::eventfd_read(wake_, &ignored);
    lock.lock();
  }
}

}  // namespace evac::desktop
