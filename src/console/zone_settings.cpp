#include "console/zone_settings.h"

#include "console/channel_colors.h"
#include "platform/windows.h"
#include "store/settings_files.h"

namespace evac {

ZoneSettings::ZoneSettings(const Doors& doors)
    : CellSettings({doors.form,
                    {doors.zones.ZoneChan},
                    {doors.zones.ZoneChanSet},
                    doors.tab.CmdAZ,
                    &doors.zones.in_use,
                    false},
                   doors.paint, doors.folder),
      doors_(doors) {}

void ZoneSettings::LoadZoneSettings() {
  load(kZoneFile);
}

void ZoneSettings::open() {
  doors_.names.load();
  doors_.equipment.load(EquipmentSettings::Reading::kByWindow);
  LoadZoneSettings();
  paint_legend(doors_.form.L1);
  for (int z = 1; z <= count(); ++z)
    if (doors_.zones.ZoneChan[z] < 1)
      show_off(z);
    else
      take_channel(z, doors_.zones.ZoneChan[z]);
  doors_.form.windows().show_modal(doors_.form);
}

void ZoneSettings::save() {
  CellSettings::save(kZoneFile);
}

}  // namespace evac
