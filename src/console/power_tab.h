// Tab "Питание" of Form1: outlets of the eight sequencers, the alarm channels, and the log of two inputs out
// of sight.
#pragma once

#include "model/system_model.h"
#include "platform/controls.h"

namespace evac {

struct PowerTab {
  explicit PowerTab(Form& form) : place{form.place("PowerTab")} {}
  Place place;

  ControlArray<Frame> Frame5{0, kSequencers + 1, [this](auto& items, int i) {
                               const std::string caption = i < kSequencers
                                                               ? "Блок питания - " + std::to_string(i + 1)
                                                               : std::string("Аварийные каналы");
                               items.emplace_back(place, "Frame5", caption, i);
                             }};
  ControlArray<Button> CmdTW1 = outlets(1), CmdTW2 = outlets(2), CmdTW3 = outlets(3), CmdTW4 = outlets(4);
  ControlArray<Button> CmdTW5 = outlets(5), CmdTW6 = outlets(6), CmdTW7 = outlets(7), CmdTW8 = outlets(8);
  // Sequencer 1..8.
  ControlArray<Button>& CmdTW(int n) {
    const std::array rows = {&CmdTW1, &CmdTW2, &CmdTW3, &CmdTW4, &CmdTW5, &CmdTW6, &CmdTW7, &CmdTW8};
    return *rows.at(static_cast<std::size_t>(n - 1));
  }
  Button CmdTW9{Frame5[kSequencers].inside(), "CmdTW9", "CH9"};
  Button CmdTW10{Frame5[kSequencers].inside(), "CmdTW10", "CH10"};

  ListBox List1{place, "List1"}, List2{place, "List2"}, List3{place, "List3"};
  TextBox Text1{place, "Text1"}, Text2{place, "Text2"};
  Button Command1{place, "Command1", "Очистить"};
  Timer Timer2{place, "Timer2", 100};
  Timer Timer13{place, "Timer13", 500};

 private:
  ControlArray<Button> outlets(int block) {
    return {0, kOutlets, [this, block](auto& items, int i) {
              items.emplace_back(Frame5[block - 1].inside(), "CmdTW" + std::to_string(block),
                                 "CH" + std::to_string(i + 1), i);
            }};
  }
};

}  // namespace evac
