#include "desktop/worker.h"

#include <thread>

namespace evac::desktop {

Worker::Worker() {
  std::thread([state = state_] { run(state); }).detach();
}

Worker::~Worker() {
  std::unique_lock lock(state_->mutex);
  state_->done = true;
  state_->changed.notify_all();
  state_->changed.wait_for(lock, std::chrono::seconds(1), [this] { return state_->over; });
}

void Worker::post(std::function<void()> job) {
  const std::lock_guard lock(state_->mutex);
  state_->jobs.push_back(std::move(job));
  state_->changed.notify_all();
}

bool Worker::is_stuck_for(std::chrono::milliseconds time) const {
  const std::lock_guard lock(state_->mutex);
  return state_->since && std::chrono::steady_clock::now() - *state_->since > time;
}

void Worker::run(const std::shared_ptr<State>& state) {
  std::unique_lock lock(state->mutex);
  while (true) {
    state->changed.wait(lock, [&] { return state->done || !state->jobs.empty(); });
    if (state->jobs.empty()) break;
    auto job = std::move(state->jobs.front());
    state->jobs.pop_front();
    state->since = std::chrono::steady_clock::now();
    lock.unlock();
    job();
    job = nullptr;
    lock.lock();
    state->since.reset();
  }
  state->over = true;
  state->changed.notify_all();
}

}  // namespace evac::desktop
