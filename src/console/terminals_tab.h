// Tab "Терминалы" of Form1: the terminals, the panel of the channels, and the routing of what is picked.
#pragma once

#include "model/system_model.h"
#include "platform/controls.h"

namespace evac {

struct TerminalsTab {
  explicit TerminalsTab(Form& form) : place{form.place("TerminalsTab")} {}
  Place place;

  Frame Frame12{place, "Frame12", "Терминалы"};
  // A terminal that is off takes no click; the file of the preset says which are on.
  ControlArray<Button> CmdAT{1, kTerminals, [this](auto& items, int t) {
                               items.emplace_back(Frame12.inside(), "CmdAT", "", t).set_enabled(false);
                             }};

  Frame Frm5{place, "Frm5", "Выбор звукового канала/установка громкости"};
  OptionGroup channels;
  ControlArray<OptionButton> Opt{0, kChannels + 1, [this](auto& items, int i) {
                                   const std::string caption = i > 0 ? std::to_string(i) + " громкость" : "";
                                   items.emplace_back(Frm5.inside(), channels, "Opt", caption, i);
                                 }};
  ControlArray<ScrollBar> VS_Z{Frm5.inside(), "VS_Z", 0, kChannels + 1, 0, 32, 0};
  // Empty until a volume has been set: CmdU refuses a channel of which none is known.
  ControlArray<Label> LblZ{Frm5.inside(), "LblZ", 0, kChannels + 1, ""};
  ControlArray<Label> Label2{Frm5.inside(), "Label2", 1, kChannels, ""};  // source names
  ControlArray<Label> L1{Frm5.inside(), "L1", 1, kChannels + 1, ""};      // colour samples
  ControlArray<Label> L2{Frm5.inside(), "L2", 1, kChannels, ""};
  ControlArray<Picture> Pic{Frm5.inside(), "Pic", 1, kChannels, picture::kNo};

  Frame Frame6{place, "Frame6", "Установка"};
  OptionGroup routing;
  OptionButton Option1{Frame6.inside(), routing, "Option1", "пресеты"};
  OptionButton Option3{Frame6.inside(), routing, "Option3", "ручная"};
  ScrollBar VsUs{Frame6.inside(), "VsUs", 1, kPresets, 1};
  Label LblUs{Frame6.inside(), "LblUs", "1"};
  Button CmdU{Frame6.inside(), "CmdU", "Установить"};
};

}  // namespace evac
