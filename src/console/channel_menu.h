// The pop-up "Канал 1" to "Канал 5" of the settings windows.
#pragma once

#include <functional>

#include "console/terminals_tab.h"

namespace evac {

class ChannelMenu {
 public:
  explicit ChannelMenu(TerminalsTab& tab) : tab_(tab) {}

  void clear_marks() {
    for (auto& entry : tab_.ch) entry.set_value(false);
  }
  // Pops up, the entry of `current` marked if it is a channel; `chosen` is told the channel that is clicked.
  void ask(int current, std::function<void(int)> chosen) {
    clear_marks();
    if (current >= tab_.ch.first() && current <= tab_.ch.last()) tab_.ch[current].set_value(true);
    chosen_ = std::move(chosen);
    tab_.MnuSet.show();
  }
  // Click of ch(c).
  void choose(int channel) {
    if (chosen_) chosen_(channel);
  }

 private:
  TerminalsTab& tab_;
  std::function<void(int)> chosen_;
};

}  // namespace evac
