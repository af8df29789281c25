// The tab "Терминалы": picking terminals, the channel rows, and the routing of what is picked, by hand or by
// preset. Picking sends nothing; CmdU sends.
#pragma once

#include "console/preset_recall.h"
#include "console/terminal_settings.h"
#include "link/link.h"
#include "platform/machine.h"

namespace evac {

class TerminalConsole : public PresetRecall {
 public:
  struct Doors {
    TerminalState& terminals;
    PaintState& paint;
    TerminalsTab& tab;
    TerminalSettings& settings;
    Link& link;
    Boxes& boxes;
  };
  explicit TerminalConsole(const Doors& doors) : doors_(doors) {}

  // No terminal is picked yet; routing is manual.
  void start();
  // CmdAT(t): picks the terminal, or lets it go.
  void pick(int t);
  // Opt(c).
  void choose_channel(int c);
  // Option1: picks every terminal of the preset, each on its own channel.
  void pick_preset();
  // VsUs.
  void choose_preset();
  void PresetLoad(int n) override;
  // CmdU: each terminal picked goes out twice, at the volume of its own channel.
  void send();

 private:
  void send_terminal(int channel, int t);

  const Doors doors_;
};

}  // namespace evac
