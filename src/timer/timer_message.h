// A message of the weekly timer: the player makes way for it, falling before it and rising behind it, and the
// clock tells its end.
#pragma once

#include "console/terminals_tab.h"
#include "player/volume.h"
#include "sound/followed_message.h"
#include "timer/timer_panel.h"

namespace evac {

class TimerMessage {
 public:
  struct Doors {
    TimerState& timer;
    const PlayerState& player;
    const TerminalState& terminals;
    const SettingsState& settings;
    MessageState& messages;
    TimerPanel& panel;
    TerminalsTab& terminals_tab;
    Volume& volume;
    Media& MP1;
    EventLoop& loop;
    Boxes& boxes;
  };
  explicit TimerMessage(const Doors& doors);

  // A step of the player's volume down, a second nearer to the message.
  void fade_down();
  // Plays the file with the player silent; one that can't be opened is told in a box.
  void start(std::string_view file);
  // One tick of Timer11: the player rises in the last seconds; at the end it is at the operator's own level,
  // and the terminals are at the console's own routing.
  void tick();

 private:
  void fade_up();

  const Doors doors_;
  FollowedMessage message_;
};

}  // namespace evac
