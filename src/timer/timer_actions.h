// What the events of the weekly timer do: they press the buttons that an operator would press, and route the
// terminals of their record to the source's channel.
#pragma once

#include "console/preset_recall.h"
#include "console/sources_tab.h"
#include "console/tuner.h"
#include "link/link.h"
#include "player/play_lists.h"
#include "player/player_tab.h"
#include "player/transport.h"
#include "timer/timer_message.h"

namespace evac {

class TimerActions {
 public:
  struct Doors {
    const SourceState& sources;
    const TerminalState& terminals;
    PlayerState& player;
    PlayerTab& player_tab;
    SourcesTab& sources_tab;
    TerminalsTab& terminals_tab;
    PlayLists& lists;
    Transport& transport;
    TimerMessage& message;
    Tuner& tuner;
    PresetRecall& presets;
    Link& link;
  };
  explicit TimerActions(const Doors& doors) : doors_(doors) {}

  // A second of the last ones before the event: a message makes itself room.
  void prepare(const std::string& record);
  // The event. A record whose function is none of the known ones does nothing. A tuner's channel of 100 or
  // more is a fault with an overflow.
  void carry_out(const std::string& record);

 private:
  void play_list(const std::string& record);
  void stop_player();
  // A source of the rack, by the operation that its function names: false when it is none.
  bool work_deck(const std::string& record, int device, std::string_view operation);
  bool tune(const std::string& record, int device, std::string_view operation);
  void recall_preset(int preset);
  // Routes the terminals of the record, both ends included, that have a channel.
  void TermRange(const std::string& record, int channel, int volume);

  const Doors doors_;
};

}  // namespace evac
