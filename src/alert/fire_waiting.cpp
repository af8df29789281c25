#include "alert/fire_waiting.h"

#include "alert/alert_type.h"

namespace evac {

bool FireWaiting::now() const {
  return doors_.watch.new_contact() || report_waits();
}

bool FireWaiting::report_waits() const {
  if (alert_type(doors_.settings) != kTypeBlock || doors_.alert.al_active) return false;
  // The bytes go through a receive machine of their own, which goes on from where the line's one stands.
  LinkState ahead = doors_.link;
  Link ear({.state = ahead, .port = doors_.port});
  bool alarm = false;
  ear.frame_received = [&] { alarm |= BlockAlert::reports_alarm(ahead.r_frame); };
  for (const std::uint8_t byte : doors_.port.in_buffer()) ear.take(byte);
  return alarm;
}

}  // namespace evac
