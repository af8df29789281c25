// An event of a control or of the machine: at most one handler, none does nothing.
#pragma once

#include <functional>
#include <utility>

namespace evac {

template <class... Args>
class Event {
 public:
  template <class Handler>
  Event& operator=(Handler&& handler) {
    handler_ = std::forward<Handler>(handler);
    return *this;
  }
  // Runs the handler, if there is one.
  void operator()(Args... args) const {
    if (handler_) handler_(args...);
  }
  explicit operator bool() const { return static_cast<bool>(handler_); }

 private:
  std::function<void(Args...)> handler_;
};

}  // namespace evac
