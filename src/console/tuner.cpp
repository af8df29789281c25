#include "console/tuner.h"

#include "console/channel_colors.h"
#include "console/source_names.h"
#include "model/text.h"

namespace evac {
namespace {

enum TunerButton { kAm = 0, kFm = 1, kNext = 2, kPrevious = 3, kStop = 4 };
enum Band : std::int16_t { kFmBand = 1, kAmBand = 2 };

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
  doors_.link.SendSource(Link::kSourceCommand, Link::kTuner,
                         i == kPrevious ? kPreviousOutput : doors_.sources.tuner_out_channel, band, preset);
  doors_.tab.LblT.set_caption(join(band == kFmBand ? "FM Tuner-play CH-" : "AM Tuner-play CH-", int{preset}));
  if (i == kNext || i == kPrevious) return;
  for (const int button : {kAm, kFm, kStop})
    doors_.tab.CmdT[button].set_back_color(button == i ? Color::kOn : doors_.paint.ColorButtonFace);
  ChanLamp(doors_.terminals_tab, source_name::kTuner,
           i == kStop ? SourceLamp::kStopped : SourceLamp::kPlaying);
}

}  // namespace evac
