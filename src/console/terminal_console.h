// The tab "Терминалы": picking terminals, the channel rows, and the routing of what is picked, by hand or by
// preset. Picking sends nothing; CmdU sends.
#pragma once

#include "console/cell_settings.h"
#include "console/preset_recall.h"
#include "link/link.h"
#include "platform/machine.h"

namespace evac {

class TerminalConsole : public PresetRecall {
 public:
  TerminalConsole(TerminalState& terminals, PaintState& paint, TerminalsTab& tab, TerminalSettings& settings,
                  Link& link, Boxes& boxes)
      : terminals_(terminals), paint_(paint), tab_(tab), settings_(settings), link_(link), boxes_(boxes) {}

  // No terminal is picked yet; routing is manual.
  void start();
  // CmdAT(t): picks the terminal, or lets it go.
  void pick(int t);
  // Opt(c).
  void choose_channel(int c);
  // VS_Z(c).
  void follow_volume(int c);
  // Option1: picks every terminal of the preset, each on its own channel.
  void pick_preset();
  // VsUs.
  void choose_preset();
  void PresetLoad(int n) override;
  // CmdU: each terminal picked goes out twice, at the volume of its own channel.
  void send();

 private:
  void send_terminal(int channel, int t);

  TerminalState& terminals_;
  PaintState& paint_;
  TerminalsTab& tab_;
  TerminalSettings& settings_;
  Link& link_;
  Boxes& boxes_;
};

}  // namespace evac
