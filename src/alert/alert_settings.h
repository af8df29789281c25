// The settings window of alerting: what it shows when it opens, what its choices enable, and its save, which
// takes effect on the main window at once.
#pragma once

#include "alert/alarm_tab.h"
#include "alert/algorithm_editor.h"
#include "alert/message_lists.h"
#include "alert/message_preview.h"
#include "model/system_model.h"
#include "platform/machine.h"
#include "store/alert_store.h"
#include "supervision/auto_control.h"

namespace evac {

class AlertSettings {
 public:
  struct Doors {
    SettingsState& settings;
    AlertState& alert;
    const SourceState& sources;
    SupervisionState& supervision;
    AlertStore& store;
    MessageLists& messages;
    MessagePreview& preview;
    AlgorithmEditor& editor;
    Form5& form5;
    AlarmTab& alarm_tab;
    MonitorPanel& monitor_panel;
    AutoControl& control;
    Boxes& boxes;
  };
  explicit AlertSettings(const Doors& doors) : doors_(doors) {}

  // Read a file each; one that can't be read is told in a box.
  void load_settings();
  void load_algorithms();
  // Reads the files anew and shows the window until it is closed.
  void open();

  // Clicks of Opt1(i), Opt2(i) and ChkM.
  void type_chosen(int i);
  void source_chosen(int i);
  void scan_clicked();
  // The range of zones that is shown never has its end before its beginning.
  void from_changed();
  void to_changed();
  // What can't be written is told in a box; the rest of the save goes on.
  void save();

 private:
  const std::string& line(SettingsIndex index) const { return doors_.settings.SettingsLine[index]; }
  int number(SettingsIndex index) const;
  // A box with the error's number behind the text; none without an error.
  void tell(std::string_view what, FileError error);
  void show_types();
  void show_numbers();
  // False when the computer that is to play has no channel or no volume.
  bool take_source();
  // False when the period of the scan is nothing.
  bool take_scan();
  void show_on_main_window();

  const Doors doors_;
};

}  // namespace evac
