// A thread for work that may stall: jobs run in their order, behind the back of who gives them. One that is
// stuck when its worker goes is left to itself.
#pragma once

#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>

namespace evac::desktop {

class Worker {
 public:
  Worker();
  // Waits for what was given, but a second at the most. Jobs must hold what they use.
  ~Worker();
  Worker(const Worker&) = delete;
  Worker& operator=(const Worker&) = delete;

  void post(std::function<void()> job);
  // What the job gives, if it does within that time; else it goes on alone.
  template <class Result>
  std::optional<Result> ask(std::function<Result()> job, std::chrono::milliseconds patience) {
    const auto answer = std::make_shared<Answer<Result>>();
    post([answer, job = std::move(job)] {
      Result result = job();
      {
        const std::lock_guard lock(answer->mutex);
        answer->result = std::move(result);
      }
      answer->came.notify_one();
    });
    std::unique_lock lock(answer->mutex);
    answer->came.wait_for(lock, patience, [&] { return answer->result.has_value(); });
    return answer->result;
  }
  // The job at hand has taken longer than that.
  bool is_stuck_for(std::chrono::milliseconds time) const;

 private:
  template <class Result>
  struct Answer {
    std::mutex mutex;
    std::condition_variable came;
    std::optional<Result> result;
  };
  struct State {
    std::mutex mutex;
    std::condition_variable changed;
    std::deque<std::function<void()>> jobs;
    std::optional<std::chrono::steady_clock::time_point> since;  // of the job at hand
    bool done = false, over = false;
  };
  static void run(const std::shared_ptr<State>& state);

  const std::shared_ptr<State> state_ = std::make_shared<State>();
};

}  // namespace evac::desktop
