#include "desktop/qt_loop.h"

#include <QCoreApplication>
#include <chrono>
#include <ctime>

namespace evac::desktop {
namespace {

using std::chrono::ceil;
using std::chrono::floor;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

WallTime system_wall() {
  const auto now = floor<milliseconds>(std::chrono::system_clock::now());
  const std::time_t seconds = std::chrono::system_clock::to_time_t(floor<std::chrono::seconds>(now));
  std::tm local{};
  localtime_r(&seconds, &local);
  using namespace std::chrono;
  const local_days day{year(local.tm_year + 1900) / (local.tm_mon + 1) / local.tm_mday};
  return day + hours(local.tm_hour) + minutes(local.tm_min) + std::chrono::seconds(local.tm_sec) +
         now.time_since_epoch() % std::chrono::seconds(1);
}

}  // namespace

QtLoop::QtLoop() {
  wake_.setSingleShot(true);
  wake_.setTimerType(Qt::PreciseTimer);
}

Instant QtLoop::now() const {
  return Instant(floor<milliseconds>(steady_clock::now().time_since_epoch()));
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
  auto how = QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents;
  if (next_due) {
    const auto left =
        ceil<milliseconds>(next_due->time_since_epoch() - steady_clock::now().time_since_epoch());
    if (left.count() > 0)
      wake_.start(left);
    else
      how = QEventLoop::AllEvents;
  }
  QCoreApplication::processEvents(how);
  wake_.stop();
  // No loop of the toolkit's own ever comes to an end here, so that its belated deletions need a call.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

}  // namespace evac::desktop
