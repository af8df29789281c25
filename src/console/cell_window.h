// What the settings windows of zones and of terminals have in common: a grid of cells, the legend, the way to
// the names. A cell's caption is the number, its tool tip the state, its background the channel.
#pragma once

#include "console/channel_legend.h"

namespace evac {

struct CellWindow : Form, ChannelLegend {
  CellWindow(Windows& windows, std::string_view name, std::string_view title, int cells,
             std::string_view names_caption)
      : Form(windows, name, title),
        ChannelLegend(static_cast<Form&>(*this)),
        place{Form::place()},
        Lbl{1, cells,
            [this](auto& items, int i) {
              items.emplace_back(place, "Lbl", std::to_string(i), i).set_back_color(Color::kWindow);
            }},
        Command2{place, "Command2", names_caption} {}
  Place place;

  ControlArray<Label> Lbl;
  Button Command1{place, "Command1", "Сохранить"};
  Button Command2;
  Button Command3{place, "Command3", "Выход"};

  // The channels of a cell, on its right press.
  PopupMenu MnuSet{place, "MnuSet"};
  ControlArray<MenuItem> ch{1, kChannels, [this](auto& items, int i) {
                              items.emplace_back(MnuSet, "ch", "Канал " + std::to_string(i), i);
                            }};
};

}  // namespace evac
