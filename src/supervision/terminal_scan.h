// The scan of the terminals: asks each in turn what it is doing, one query a terminal, and waits for its
// answer in the event loop, so that everything else goes on meanwhile.
#pragma once

#include "link/link.h"
#include "link/reply_wait.h"
#include "model/system_model.h"
#include "platform/event_loop.h"
#include "supervision/scan_panel.h"

namespace evac {

class TerminalScan {
 public:
  struct Doors {
    SupervisionState& supervision;
    ZoneState& zones;
    const TerminalState& terminals;
    const LinkState& received;
    ScanPanel& panel;
    Link& link;
    ReplyWait& wait;
    EventLoop& loop;
  };
  explicit TerminalScan(const Doors& doors) : doors_(doors) {}

  // The panel at start.
  void start();
  // CmdSkan, whoever presses it: runs a pass and returns when it is over, or stops the pass that runs. A
  // stopped pass still sends its remaining queries, back to back, when the event in which it was stopped
  // is over.
  void toggle();
  // Cd1(i): sorts the answers by that column.
  void sort_by(int i);

 private:
  void run();
  void ask(int terminal);
  // Lets the others in until the terminal has answered; false when it has not, or no one waits any longer.
  bool answered();
  void take_answer(int terminal);
  void mark_head(int i);
  void show_progress(std::string_view text, int step);
  void show_over();

  const Doors doors_;
};

}  // namespace evac
