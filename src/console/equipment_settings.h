// The equipment: which source feeds each channel and how loud, the port of the line, the outlets that come up
// after a start. Kept in F_ust.dat, edited in Form22, shown in the legends of the other windows.
#pragma once

#include "console/channel_legend.h"
#include "console/equipment_form.h"
#include "console/terminals_tab.h"
#include "platform/machine.h"

namespace evac {

class EquipmentSettings {
 public:
  struct Doors {
    SourceState& sources;
    PowerState& power;
    DataFolder& folder;
    SerialPort& port;
    Form22& form;
    TerminalsTab& terminals_tab;
    SourcesTab& sources_tab;
    std::array<ChannelLegend*, 2> legends;  // of the windows of zones and of terminals
    const AlertState& alert;
    Boxes& boxes;
  };
  explicit EquipmentSettings(const Doors& doors) : doors_(doors) {}

  // Reads the file anew and shows the window until it is closed.
  void open();
  // Who asks for a reading decides what a port that cannot be opened is: at the start a fault, by a settings
  // window that shows what is there a lost line. The operator's volume bars follow at the start alone.
  enum class Reading { kAtStart, kByWindow };
  // Reads the file into the window and the model; closes the port and opens the one that the file names. A
  // damaged number leaves its field as it is, a file that can't be read leaves everything.
  void load(Reading reading);
  // Command1. The port is opened before the file is touched, so that one that cannot be opened is never kept.
  // What can't be written is told in a box; the window and the model keep what was settled.
  void save();

 private:
  // Indicators of the digital-input cards.
  void show_cards();
  void show_row(int i, const EquipmentRecords::Row& row, Reading reading);
  void show_outlets(int n, int mask);
  void show_source(int i);
  void show_volume(int i);
  void set_volume_bar(int i);
  void clear_sources();
  void take_source(int i);
  void use_port(int number, void (SerialPort::*open)());

  const Doors doors_;
};

}  // namespace evac
