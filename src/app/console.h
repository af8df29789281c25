// The whole console: the shared state, the windows, the rooms and their wiring. A host builds one on its
// machine and calls load(); a Fault that comes out of anything ends it.
#pragma once

#include "admin/password_change.h"
#include "admin/password_gate.h"
#include "admin/restart_times.h"
#include "admin/service_window.h"
#include "alert/alert_engine.h"
#include "alert/alert_settings.h"
#include "alert/fire_waiting.h"
#include "alert/manual_alert.h"
#include "alert/watch.h"
#include "alert/zone_groups.h"
#include "app/forms.h"
#include "app/timer_wing.h"
#include "console/alarm_channels.h"
#include "console/audio_matrix.h"
#include "console/deck.h"
#include "console/equipment_settings.h"
#include "console/name_list.h"
#include "console/sequencers.h"
#include "console/terminal_console.h"
#include "console/terminal_settings.h"
#include "console/tuner.h"
#include "console/zone_console.h"
#include "console/zone_settings.h"
#include "journal/journal.h"
#include "link/dispatcher.h"
#include "link/link.h"
#include "link/reply_wait.h"
#include "model/system_model.h"
#include "platform/machine.h"
#include "player/add_panel.h"
#include "player/player_power.h"
#include "player/position.h"
#include "player/tag_search.h"
#include "player/track_choice.h"
#include "player/track_removal.h"
#include "player/volume.h"
#include "store/alert_store.h"
#include "store/data_folder.h"
#include "supervision/auto_control.h"
#include "supervision/clock.h"
#include "supervision/scan_report.h"
#include "supervision/status_file.h"
#include "supervision/terminal_scan.h"
#include "supervision/text_log.h"
#include "supervision/zone_readback.h"

namespace evac {

class Console {
 public:
  explicit Console(const Machine& machine);
  ~Console();

  // The load event of Form1: folders, port, settings, defaults, the first line of the journal. Shows Form1
  // and lets the timers run. Faults when a folder cannot be made or the port cannot be opened.
  void load();

  // What the closing of Form1 does: gives back what the machine lent, and ends the program.
  void shutdown();

  // The host found out late how long the player's track is: see there.
  void mend_track_length(std::string_view file, double seconds, int late) {
    transport_.mend_length(file, seconds, late);
  }

  Windows& windows() { return windows_; }
  Forms& forms() { return forms_; }
  Form1& form1() { return forms_.form1; }
  SystemModel& model() { return model_; }
  Journal& journal() { return journal_; }
  Watch& watch() { return watch_; }
  const FireWaiting& fire_waiting() const { return fire_waiting_; }

 private:
  // The handlers of each wing, in a file of its own.
  void wire_link();
  void wire_menu();
  void wire_console();
  void wire_console_settings();
  void wire_sources();
  void wire_supervision();
  void wire_alert();
  void wire_alert_settings();
  void wire_player();
  void wire_timer();
  void wire_admin();
  // The one place where a settings window is asked for; what guards it stands here.
  void open_settings(const std::function<void()>& open);

  // The steps of load().
  void make_folders();
  void open_port();
  void load_settings();
  void take_alert_settings();
  void register_cards();
  void paint_legends();
  void start_timers();

  Machine machine_;
  SystemModel model_;
  Windows windows_;
  Forms forms_;
  DataFolder data_folder_;
  Journal journal_;
  Link link_;
  ReplyWait reply_wait_;
  Dispatcher dispatcher_;
  Deck cd_deck_, mp3_deck_;
  Tuner tuner_;
  AudioMatrix audio_matrix_;
  Sequencers sequencers_;
  AlarmChannels alarm_channels_;
  EquipmentSettings equipment_;
  NameList zone_names_, terminal_names_;
  ZoneSettings zone_settings_;
  TerminalSettings terminal_settings_;
  ZoneConsole zone_console_;
  TerminalConsole terminal_console_;

  // Supervision.
  TerminalScan terminal_scan_;
  ScanReport scan_report_;
  AutoControl auto_control_;
  ZoneReadback zone_readback_;
  StatusFile status_file_;
  TextLog text_log_;
  Clock clock_;
  // Player.
  ListPanels list_panels_;
  DriveSteps drive_steps_;
  TrackList track_list_;
  TagReader tag_reader_;
  Volume volume_;
  Transport transport_;
  Position position_;
  TrackChoice track_choice_;
  ListLength list_length_;
  AddPanel add_panel_;
  PlayLists play_lists_;
  TrackRemoval track_removal_;
  TagSearch tag_search_;
  PlayerPower player_power_;

  // Administration.
  PasswordGate password_gate_;
  PasswordChange password_change_;
  RestartTimes restart_times_;
  ServiceWindow service_window_;

  // Alert.
  ZoneLamps zone_lamps_;
  ZoneGroups zone_groups_;
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
  Watch watch_;
  FireWaiting fire_waiting_;

  TimerWing timer_;
};

}  // namespace evac
