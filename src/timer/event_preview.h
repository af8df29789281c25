// Listening to the message that is chosen in the editor of the weekly programmes.
#pragma once

#include "model/system_model.h"
#include "platform/machine.h"
#include "timer/programme_form.h"

namespace evac {

class EventPreview {
 public:
  struct Doors {
    const SettingsState& settings;
    Form3& form;
    Media& MP2;
    Files& files;
    Boxes& boxes;
  };
  explicit EventPreview(const Doors& doors) : doors_(doors) {}

  // CmdS and CmdSt.
  void play();
  void stop();

 private:
  const Doors doors_;
};

}  // namespace evac
