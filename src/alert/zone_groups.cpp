#include "alert/zone_groups.h"

#include "model/text.h"

namespace evac {

void ZoneGroups::toggle_all() {
  toggle_group(doors_.zones.AllZonesOn, doors_.tab.CmdAG, [](int channel) { return channel > 0; });
}

void ZoneGroups::toggle_chosen() {
  toggle_group(doors_.zones.ChosenZonesOn, doors_.tab.CmdTG,
               [this](int channel) { return channel == doors_.sources.ch_computer; });
}

template <class Chosen>
void ZoneGroups::toggle_group(bool& on, Button& button, Chosen chosen) {
  if (on) {
    on = false;
    button.set_back_color(doors_.paint.ColorButtonFace);
    doors_.lamps.all_idle();
    doors_.link.SendAllStop();
    return;
  }
  if (!computer_ready()) return;
  on = true;
  button.set_back_color(Color::kOn);
  for (int z = 1; z <= kZones; ++z) {
    if (!chosen(doors_.zones.ZoneChan[z])) continue;
    doors_.lamps.alerted(z);
    doors_.link.SendZoneSet(doors_.sources.ch_computer, doors_.sources.vol_computer, z);
    doors_.link.SendZoneSet(doors_.sources.ch_computer, doors_.sources.vol_computer, z);
  }
}

bool ZoneGroups::computer_ready() {
  if (Number(doors_.settings.SettingsLine[kBlockSource]) == 0)
    doors_.boxes.message("В настройках оповещения не выбран компьютер");
  else if (doors_.sources.ch_computer == 0)
    doors_.boxes.message("В настройках оборудования не выбран компьютер");
  else if (doors_.sources.vol_computer == 0)
    doors_.boxes.message(join("Уровень звука в ", int{doors_.sources.ch_computer}, " канале =0"));
  else
    return true;
  return false;
}

}  // namespace evac
