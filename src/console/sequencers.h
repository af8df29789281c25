// The mains power of the rack: eight sequencers of eight outlets. The saved outlets come up one by one after
// a start; what the operator switches is not saved.
#pragma once

#include "console/power_tab.h"
#include "link/link.h"
#include "platform/machine.h"

namespace evac {

class Sequencers {
 public:
  struct Doors {
    PowerState& power;
    PowerTab& tab;
    const PaintState& paint;
    Link& link;
    Boxes& boxes;
  };
  explicit Sequencers(const Doors& doors) : doors_(doors) {}

  // CmdTW<n>(i): switches outlet i, 0..7, of sequencer n, 1..8; asks before it switches off.
  void toggle(int n, int i);
  // Tick of Timer13: one outlet of the saved masks. Those that are saved are pressed, so one that the
  // operator has switched on meanwhile raises the question.
  void replay();

 private:
  void SendSeqRow(int n);

  const Doors doors_;
};

}  // namespace evac
