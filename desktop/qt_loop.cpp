#include "desktop/qt_loop.h"

#include <QCoreApplication>
#include <chrono>
#include <ctime>

#include "desktop/display.h"

namespace evac::desktop {

using std::chrono::ceil;
using std::chrono::floor;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

QtLoop::QtLoop() {
  wake_.setSingleShot(true);
  wake_.setTimerType(Qt::PreciseTimer);
}

Instant QtLoop::now() const {
  return Instant(floor<milliseconds>(steady_clock::now().time_since_epoch()));
}

WallTime QtLoop::system_wall() const {
  const auto now = floor<milliseconds>(std::chrono::system_clock::now());
  if (const auto minute = floor<std::chrono::minutes>(now); minute != minute_) {
    minute_ = minute;
    const std::time_t seconds = std::chrono::system_clock::to_time_t(minute);
    std::tm local{};
    localtime_r(&seconds, &local);
    offset_ = std::chrono::seconds(local.tm_gmtoff);
  }
  return WallTime(now.time_since_epoch() + offset_);
}

WallTime QtLoop::wall() const {
  return wall_.look(now(), system_wall());
}

Instant QtLoop::moment_of(WallTime time) const {
  const Instant present = now();
  (void)wall_.look(present, system_wall());
  return present + wall_.until(time);
}

void QtLoop::idle(std::optional<Instant> next_due) {
  before_wait();
  std::optional<ToolkitWait::Moment> end;
  if (next_due) end.emplace(next_due->time_since_epoch());
  if (waits_itself_) {
    if (toolkit_.until(end) || steady_clock::now() - stepped_ >= kToolkitStep)
      step_toolkit(QEventLoop::AllEvents);
    return;
  }
  const auto left = end ? ceil<milliseconds>(*end - steady_clock::now()) : milliseconds{};
  if (left.count() > 0) wake_.start(left);
  const bool waits = !end || left.count() > 0;
  step_toolkit(waits ? QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents : QEventLoop::AllEvents);
  wake_.stop();
}

void QtLoop::step_toolkit(QEventLoop::ProcessEventsFlags how) {
  if (display_gone()) return display_lost();
  QCoreApplication::processEvents(how);
  stepped_ = steady_clock::now();
  // No loop of the toolkit's own ever comes to an end here, so that its belated deletions need a call.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

}  // namespace evac::desktop
