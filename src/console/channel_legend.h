// The legend of a settings window: colour, source and volume of each channel, and a sixth row for none.
#pragma once

#include "model/system_model.h"
#include "platform/controls.h"

namespace evac {

struct ChannelLegend {
  explicit ChannelLegend(Form& form) : place{form.place("ChannelLegend")} {
    Label2[kChannels + 1].set_caption("Не выбран");
  }
  Place place;
  ControlArray<Label> L1{place, "L1", 1, kChannels + 1, ""};
  ControlArray<Label> Label2{place, "Label2", 1, kChannels + 1, ""};
  ControlArray<Label> LblZ{place, "LblZ", 1, kChannels, ""};
};

}  // namespace evac
