// The whole console: the shared state, the windows, the rooms and their wiring. A host builds one on its
// machine and calls load(); a Fault that comes out of anything ends it.
#pragma once

#include "alert/alert_engine.h"
#include "alert/alert_settings.h"
#include "alert/manual_alert.h"
#include "app/form1.h"
#include "console/audio_matrix.h"
#include "console/equipment_settings.h"
#include "console/form4.h"
#include "console/form6.h"
#include "console/name_list.h"
#include "console/terminal_console.h"
#include "console/zone_console.h"
#include "journal/journal.h"
#include "link/dispatcher.h"
#include "link/link.h"
#include "link/reply_wait.h"
#include "model/system_model.h"
#include "platform/machine.h"
#include "store/alert_store.h"
#include "supervision/clock_line.h"

namespace evac {

class Console {
 public:
  explicit Console(const Machine& machine);
  ~Console();

  // The load event of Form1: folders, port, settings, defaults, the first line of the journal. Shows Form1
  // and lets the timers run. Faults when a folder cannot be made or the port cannot be opened.
  void load();

  Windows& windows() { return windows_; }
  Form1& form1() { return form1_; }
  SystemModel& model() { return model_; }
  Journal& journal() { return journal_; }

 private:
  void wire();
  void wire_equipment();
  void wire_cells();
  void wire_zones();
  void wire_terminals();
  void wire_alert();
  void wire_alert_settings();
  void wire_menu();
  // The one place where a settings window is asked for; what guards it stands here.
  void open_settings(void (Console::*open)());
  void open_equipment();
  void open_zones();
  void open_terminals();
  void open_alert_settings();
  void shutdown();

  void make_folders();
  void set_defaults();
  void open_port();
  void load_settings();
  void take_alert_settings();
  void register_cards();
  void paint_legends();
  void set_timers();

  Machine machine_;
  SystemModel model_;
  Windows windows_;
  Form1 form1_;
  Form2 form2_;
  Form22 form22_;
  Form33 form33_;
  Form55 form55_;
  Form6 form6_;
  Form4 form4_;
  Form5 form5_;
  Form7 form7_;
  Journal journal_;
  Link link_;
  ReplyWait reply_wait_;
  Dispatcher dispatcher_;
  ClockLine clock_line_;
  AudioMatrix audio_matrix_;
  EquipmentSettings equipment_;
  ChannelMenu channel_menu_;
  ZoneSettings zone_settings_;
  TerminalSettings terminal_settings_;
  NameList zone_names_, terminal_names_;
  ZoneLamps zone_lamps_;
  ZoneConsole zone_console_;
  TerminalConsole terminal_console_;

  // Alert.
  AlertStore alert_store_;
  MessageLists message_lists_;
  MessagePreview message_preview_;
  ZoneChoice zone_choice_;
  AlgorithmEditor algorithm_editor_;
  AlertSettings alert_settings_;
  House house_;
  AlertEnd alert_end_;
  BlockAlert block_alert_;
  AlgorithmRun algorithm_run_;
  AlertEngine alert_engine_;
  ManualAlert manual_alert_;
};

}  // namespace evac
