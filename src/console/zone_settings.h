// The settings of the zones: which exist, and on which channel each sits.
#pragma once

#include "console/cell_settings.h"
#include "console/equipment_settings.h"
#include "console/name_list.h"
#include "console/zone_cells_form.h"
#include "console/zones_tab.h"

namespace evac {

class ZoneSettings : public CellSettings {
 public:
  struct Doors {
    ZoneState& zones;
    PaintState& paint;
    DataFolder& folder;
    Form33& form;
    ZonesTab& tab;
    NameList& names;
    EquipmentSettings& equipment;
  };
  explicit ZoneSettings(const Doors& doors);

  void LoadZoneSettings();
  // Reads all that the window shows, and shows it until it is closed. A zone without a channel comes up off.
  void open();
  // Command1.
  void save();

 private:
  const Doors doors_;
};

}  // namespace evac
