// The settings of the terminals: which exist, and on which channel each sits, preset by preset.
#pragma once

#include "console/cell_settings.h"
#include "console/equipment_settings.h"
#include "console/name_list.h"
#include "console/terminal_cells_form.h"
#include "console/terminals_tab.h"

namespace evac {

class TerminalSettings : public CellSettings {
 public:
  struct Doors {
    TerminalState& terminals;
    PaintState& paint;
    DataFolder& folder;
    Form55& form;
    TerminalsTab& tab;
    NameList& names;
    EquipmentSettings& equipment;
  };
  explicit TerminalSettings(const Doors& doors);

  // The terminals of preset n, and how many there are.
  void LoadTermSettings(int n);
  // Paints the cells by their channels and begins the working copy anew.
  void ShowTermChannels();
  // Reads all that the window shows, and shows it until it is closed.
  void open();
  // Command1: the file of the current preset.
  void save();
  // VsUs: goes over to another preset, and takes the main window along.
  void choose_preset();

 private:
  const Doors doors_;
};

}  // namespace evac
