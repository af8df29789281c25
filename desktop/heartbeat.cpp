#include "desktop/heartbeat.h"

#include <systemd/sd-daemon.h>

namespace evac::desktop {

void Heartbeat::ready() {
  ::sd_notify(0, "READY=1");
}

void Heartbeat::beat() {
  const auto now = std::chrono::steady_clock::now();
  if (now - last_ < std::chrono::seconds(1)) return;
  last_ = now;
  ::sd_notify(0, "WATCHDOG=1");
}

void Heartbeat::stopping() {
  ::sd_notify(0, "STOPPING=1");
}

}  // namespace evac::desktop
