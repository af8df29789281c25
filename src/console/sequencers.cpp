#include "console/sequencers.h"

#include "model/text.h"

namespace evac {

void Sequencers::toggle(int n, int i) {
  bool& on = doors_.power.SeqRow[n].at(static_cast<std::size_t>(i));
  const auto title = n == 1 ? "Power off" : "Power OFF";
  if (on && !doors_.boxes.ask(join("Действительно выключить канал ", i + 1), title)) return;
  on = !on;
  doors_.tab.CmdTW(n)[i].set_back_color(on ? Color::kOn : doors_.paint.ColorButtonFace);
  SendSeqRow(n);
}

void Sequencers::replay() {
  for (int n = 1; n <= kSequencers; ++n) {
    // The last sequencer has one step more, for which there is no outlet.
    const int steps = n == kSequencers ? kOutlets + 1 : kOutlets;
    if (doors_.power.SeqReplayStep[n] >= steps) continue;
    const int step = doors_.power.SeqReplayStep[n]++;
    if (step < kOutlets && (doors_.power.SeqSavedMask[n] >> step & 1)) doors_.tab.CmdTW(n)[step].click();
    return;
  }
  doors_.tab.Timer13.set_enabled(false);
}

// The first outlet is the highest bit on the line, though the lowest in a saved mask.
void Sequencers::SendSeqRow(int n) {
  int mask = 0;
  for (const bool on : doors_.power.SeqRow[n]) mask = 2 * mask + on;
  doors_.link.SendSeqPower(n - 1, mask);
}

}  // namespace evac
