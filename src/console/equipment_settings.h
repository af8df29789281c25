// The equipment: which source feeds each channel and how loud, the port of the line, the outlets that come up
// after a start. Kept in F_ust.dat, edited in Form22, shown in the legends of the other windows.
#pragma once

#include "console/channel_legend.h"
#include "console/form22.h"
#include "console/terminals_tab.h"
#include "platform/machine.h"

namespace evac {

class EquipmentSettings {
 public:
  EquipmentSettings(SourceState& sources, PowerState& power, const SettingsState& settings, Files& files,
                    SerialPort& port, Form22& form, TerminalsTab& terminals_tab, SourcesTab& sources_tab,
                    ChannelLegend& zone_legend, ChannelLegend& terminal_legend)
      : sources_(sources),
        power_(power),
        settings_(settings),
        files_(files),
        port_(port),
        form_(form),
        terminals_tab_(terminals_tab),
        sources_tab_(sources_tab),
        legends_{&zone_legend, &terminal_legend} {}

  // Who asks for a reading decides what a port that cannot be opened is: at the start a fault, by a settings
  // window that shows what is there a lost line.
  enum class Reading { kAtStart, kByWindow };
  // Reads the file into the window and the model; closes the port and opens the one that the file names. A
  // number that does not fit ends it silently.
  void load(Reading reading);
  // Command1. The port is opened before the file is touched, so that one that cannot be opened is never kept.
  void save();
  // Indicators of the digital-input cards.
  void show_cards(const AlertState& alert);

 private:
  bool read_row(int i, const EquipmentRecords::Row& row);
  bool read_outlets(int n, const std::string& text);
  void show_source(int i);
  void show_volume(int i);
  void clear_sources();
  void take_source(int i);
  void use_port(int number, void (SerialPort::*open)());

  SourceState& sources_;
  PowerState& power_;
  const SettingsState& settings_;
  Files& files_;
  SerialPort& port_;
  Form22& form_;
  TerminalsTab& terminals_tab_;
  SourcesTab& sources_tab_;
  const std::array<ChannelLegend*, 2> legends_;
};

}  // namespace evac
