// The scan of the terminals: asks each in turn what it is doing, one query a terminal. It holds nobody while
// it waits for an answer, and goes on whatever window stands open.
#pragma once

#include <functional>
#include <optional>

#include "link/link.h"
#include "link/reply_wait.h"
#include "model/system_model.h"
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
  };
  explicit TerminalScan(const Doors& doors) : doors_(doors) {}

  // The panel at start.
  void start();
  // CmdSkan, whoever presses it: begins a pass, or stops the one that runs. A stopped pass still sends its
  // remaining queries, back to back, when the event in which it was stopped is over.
  void toggle();
  // Runs that once the pass that was just begun is over; at once when none runs.
  void when_over(std::function<void()> then);
  // Called between two events: goes on if the terminal has answered, has had its time, or no one waits any
  // longer.
  void go_on();
  // Cd1(i): sorts the answers by that column.
  void sort_by(int i);

 private:
  struct Pass {
    int last;  // terminal
    int terminal = 0, step = 0;
    std::function<void()> then = [] {};
  };
  // False behind the last terminal.
  bool ask_next();
  void take_answer(int terminal);
  void mark_head(int i);
  void show_progress(std::string_view text, int step);
  void show_over();

  const Doors doors_;
  std::optional<Pass> pass_;  // one that was stopped too, until its queries are sent
};

}  // namespace evac
