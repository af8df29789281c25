// The tuner of the rack: two bands and a preset. Each press sends one frame at once; no answer is awaited.
#pragma once

#include "console/sources_tab.h"
#include "console/terminals_tab.h"
#include "link/link.h"

namespace evac {

enum TunerBand : std::int16_t { kFmBand = 1, kAmBand = 2 };

class Tuner {
 public:
  struct Doors {
    SourceState& sources;
    SourcesTab& tab;
    TerminalsTab& terminals_tab;
    const PaintState& paint;
    Link& link;
  };
  explicit Tuner(const Doors& doors) : doors_(doors) {}

  // Click of Opt_t(i); sends nothing.
  void choose_output(int i) { doors_.sources.tuner_out_channel = static_cast<std::int16_t>(i); }
  // CmdT(i): 0 AM, 1 FM, 2 next preset, 3 previous, 4 stop. Faults with an overflow at preset 100: it is
  // counted, but neither sent nor shown.
  void press(int i);
  // Goes to that preset of that band at once; 100 or more is an overflow fault.
  void tune(TunerBand band, int preset);

 private:
  void send(int output);
  void show_preset();
  void light(int button);

  const Doors doors_;
};

}  // namespace evac
