// Whether a fire has come in that no handler has seen yet: for a host whose box holds everything.
#pragma once

#include "alert/watch.h"
#include "link/link.h"

namespace evac {

class FireWaiting {
 public:
  struct Doors {
    const Watch& watch;
    const AlertState& alert;
    const SettingsState& settings;
    const LinkState& link;
    SerialPort& port;
  };
  explicit FireWaiting(const Doors& doors) : doors_(doors) {}

  // A contact that has closed since the watch last looked, or a report of the block among the bytes that
  // wait.
  bool now() const;

 private:
  bool report_waits() const;

  const Doors doors_;
};

}  // namespace evac
