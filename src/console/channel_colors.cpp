#include "console/channel_colors.h"

namespace evac {

void pick_channel_color(PaintState& paint, int channel) {
  if (is_channel(channel)) paint.ColorChannel = kLegendColors[static_cast<std::size_t>(channel - 1)];
}

void SetChannelColor(PaintState& paint, Control& control, int channel) {
  pick_channel_color(paint, channel);
  control.set_back_color(paint.ColorChannel);
}

void paint_legend(ControlArray<Label>& samples) {
  for (int i = samples.first(); i <= samples.last(); ++i)
    samples[i].set_back_color(kLegendColors[static_cast<std::size_t>(i - 1)]);
}

void ChanLamp(TerminalsTab& tab, std::string_view source, SourceLamp state) {
  for (int c = 1; c <= kChannels; ++c)
    if (tab.Label2[c].caption() == source)
      tab.Pic[c].set_picture(state == SourceLamp::kPlaying ? picture::kYes : picture::kNo);
}

}  // namespace evac
