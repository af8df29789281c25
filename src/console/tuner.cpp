#include "console/tuner.h"

#include <algorithm>
#include <limits>

#include "console/channel_colors.h"
#include "console/source_names.h"
#include "model/text.h"

namespace evac {
namespace {

enum TunerButton { kAm = 0, kFm = 1, kNext = 2, kPrevious = 3, kStop = 4 };

// The output that the controller expects in the frame of the previous preset, whatever output is chosen.
constexpr int kPreviousOutput = 7;

}  // namespace

void Tuner::press(int i) {
  auto& band = doors_.sources.tuner_band;
  auto& preset = doors_.sources.tuner_preset;
  switch (i) {
    case kAm:
      band = kAmBand;
      break;
    case kFm:
      band = kFmBand;
      break;
    case kNext:
      ++preset;
      break;
    case kPrevious:
      if (preset > 1) --preset;
      break;
    case kStop:
      // There is no stop on the line: the tuner goes back to where it was at start.
      band = kAmBand;
      preset = 1;
      break;
  }
  send(i == kPrevious ? kPreviousOutput : doors_.sources.tuner_out_channel);
  show_preset();
  if (i == kNext || i == kPrevious) return;
  light(i);
  ChanLamp(doors_.terminals_tab, source_name::kTuner,
           i == kStop ? SourceLamp::kStopped : SourceLamp::kPlaying);
}

void Tuner::tune(TunerBand band, int preset) {
  doors_.sources.tuner_band = band;
  doors_.sources.tuner_preset =
      static_cast<std::int16_t>(std::clamp(preset, 0, int{std::numeric_limits<std::int16_t>::max()}));
  show_preset();
  light(band == kFmBand ? kFm : kAm);
  ChanLamp(doors_.terminals_tab, source_name::kTuner, SourceLamp::kPlaying);
  send(doors_.sources.tuner_out_channel);
}

void Tuner::send(int output) {
  doors_.link.SendSource(Link::kSourceCommand, Link::kTuner, output, doors_.sources.tuner_band,
                         doors_.sources.tuner_preset);
}

void Tuner::show_preset() {
  const bool fm = doors_.sources.tuner_band == kFmBand;
  doors_.tab.LblT.set_caption(
      join(fm ? "FM Tuner-play CH-" : "AM Tuner-play CH-", int{doors_.sources.tuner_preset}));
}

void Tuner::light(int lit) {
  for (const int button : {kAm, kFm, kStop})
    doors_.tab.CmdT[button].set_back_color(button == lit ? Color::kOn : doors_.paint.ColorButtonFace);
}

}  // namespace evac
