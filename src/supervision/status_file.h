// A line once a second for whoever watches the console from afar: the file FNetKntrl in the program folder.
// Life is judged by its time and its counter moving.
#pragma once

#include "model/system_model.h"
#include "platform/event_loop.h"
#include "platform/files.h"

namespace evac {

class StatusFile {
 public:
  struct Doors {
    const SettingsState& settings;
    const AlertState& alert;
    const EventLoop& loop;
    Files& files;
  };
  explicit StatusFile(const Doors& doors) : doors_(doors) {}

  // One tick of Timer14. A file that can't be written is passed over in silence; the counter goes on.
  void tick();

 private:
  const Doors doors_;
  int NetKntrlCount = 0;
};

}  // namespace evac
