#include "desktop/toolkit_wait.h"

#include <glib.h>
#include <poll.h>

#include <QAbstractEventDispatcher>
#include <algorithm>

namespace evac::desktop {
namespace {

using std::chrono::nanoseconds;

// The library's own poll takes the one for the other too.
static_assert(sizeof(GPollFD) == sizeof(pollfd));

timespec time_of(nanoseconds time) {
  const auto seconds = std::chrono::floor<std::chrono::seconds>(time);
  return {.tv_sec = seconds.count(), .tv_nsec = (time - seconds).count()};
}

}  // namespace

ToolkitWait::ToolkitWait() = default;
ToolkitWait::~ToolkitWait() = default;

bool ToolkitWait::is_possible() {
  const auto* dispatcher = QAbstractEventDispatcher::instance();
  return dispatcher && dispatcher->inherits("QEventDispatcherGlib");
}

bool ToolkitWait::until(std::optional<Moment> end) {
  GMainContext* context = g_main_context_default();
  if (!g_main_context_acquire(context)) return true;
  gint priority = 0, own_timeout = 0;
  bool work = g_main_context_prepare(context, &priority);
  if (!work) {
    const auto query = [&] {
      return static_cast<std::size_t>(g_main_context_query(context, priority, &own_timeout,
                                                           reinterpret_cast<GPollFD*>(watched_.data()),
                                                           static_cast<gint>(watched_.size())));
    };
    std::size_t count = query();
    while (count > watched_.size()) {
      watched_.resize(count);
      count = query();
    }
    const nanoseconds left =
        end ? std::max<nanoseconds>(*end - std::chrono::steady_clock::now(), nanoseconds{})
            : nanoseconds::max();
    const nanoseconds own = own_timeout < 0 ? nanoseconds::max() : std::chrono::milliseconds(own_timeout);
    const nanoseconds least = std::min(left, own);
    const timespec time = time_of(least);
    const int came = ::ppoll(watched_.data(), count, least == nanoseconds::max() ? nullptr : &time, nullptr);
    work = came != 0 || own <= left;
    if (came > 0)
      g_main_context_check(context, priority, reinterpret_cast<GPollFD*>(watched_.data()),
                           static_cast<gint>(count));
  }
  g_main_context_release(context);
  return work;
}

}  // namespace evac::desktop
