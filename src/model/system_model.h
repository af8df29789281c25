// The one shared state of the console. Everything lives on one thread; whatever runs the event pump may find
// any of it changed afterwards. A room takes only the structs that it needs.
#pragma once

#include <array>
#include <bitset>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/bounded_array.h"
#include "model/color.h"
#include "model/time.h"

namespace evac {

inline constexpr int kZones = 120;
inline constexpr int kContacts = 128;  // fire inputs, each of the zone with its number
inline constexpr int kTerminals = 255;
inline constexpr int kChannels = 5;
inline constexpr int kSequencers = 8;
inline constexpr int kOutlets = 8;
inline constexpr int kPresets = 100;

inline constexpr int kFrameSize = 9;
using Frame9 = std::array<std::uint8_t, kFrameSize>;

// The line to the controller.
struct LinkState {
  Frame9 t_buf{};                        // send buffer of frames built in handlers
  Frame9 h_buf{};                        // send buffer of the shared frame helpers
  std::array<std::uint8_t, 21> r_buf{};  // the 7 bytes behind the sync of the last frame
  Frame9 r_frame{};                      // the last frame as on the wire
  std::uint8_t rx_state = 0;             // 0 first sync byte, 1 second, 2 body
  std::int16_t rx_count = 0;             // body bytes so far, 0..6
  std::optional<Instant> last_poll;
  bool alarm_zones_on = false;         // from the alert sequence until a stop of all
  std::uint8_t poll_answer_state = 0;  // 0 date next, 1 time next, 2 steady
  std::uint8_t link_state = 0;         // 1 down, 2 up; written only
  std::uint8_t prog_state = 0;         // 1 suspended, 2 running; written only
  std::uint8_t status_line_count = 0;  // frames since the line of polling text was cleared
};

// Zones or their contacts.
using ZoneBits = std::bitset<kContacts>;
constexpr std::size_t zone_bit(int zone) {
  return static_cast<std::size_t>(zone - 1);
}

// A list of names by the number of its line; the edition grows with each load or save.
struct NumberedNames {
  std::map<int, std::string> by_number;
  int edition = 0;
};

// Zones and terminals. Channels: 1..5, 0 none. Indexed by number.
struct ZoneState {
  BoundedArray<std::int16_t, 1, kZones> ZoneChan;
  BoundedArray<std::int16_t, 1, kZones> ZoneChanSet;  // working copy of the settings window, 255 switched off
  BoundedArray<bool, 1, kZones> ZoneOn;
  BoundedArray<std::int16_t, 1, kZones> ZoneChanScan;
  BoundedArray<std::int16_t, 1, kZones> ZoneVolScan;
  // As the settings of the zones and the list of their names were last loaded or saved.
  ZoneBits in_use;
  NumberedNames names;
  bool AllZonesOn = false;
  bool ChosenZonesOn = false;
};

struct TerminalState {
  BoundedArray<std::int16_t, 1, kTerminals> TermChan;
  BoundedArray<std::int16_t, 1, kTerminals> TermChanSet;  // working copy of the settings window, 255 unset
  BoundedArray<bool, 1, kTerminals> TermSel;
  std::int16_t selected_count = 0;  // terminals picked; a preset change leaves it as it was
  std::int16_t sel_channel = 0;     // channel picked on the console
  std::int16_t term_count = 1;      // highest terminal in use, by the last file read
  std::int16_t term_file_no = 1;    // the current preset
};

// The colour picked last; all painting by channel shares it.
struct PaintState {
  Color ColorChannel = Color::kButtonFace;
  Color ColorButtonFace = Color::kButtonFace;
};

struct SourceState {
  // Channel and volume of each source, 0 not assigned.
  std::int16_t ch_computer = 0, vol_computer = 0;
  std::int16_t ch_cd = 0, vol_cd = 0;
  std::int16_t ch_mp3 = 0, vol_mp3 = 0;
  std::int16_t ch_tuner = 0, vol_tuner = 0;
  std::int16_t cd_track = 1, mp3_track = 1, tuner_preset = 1;
  std::int16_t tuner_band = 2;  // 1 FM, 2 AM
  std::int16_t cd_out_channel = 0, mp3_out_channel = 0, tuner_out_channel = 0;
  BoundedArray<std::uint8_t, 1, 8> MatrixSel;  // input of each matrix output, 0 muted, 15 none
};

struct PowerState {
  BoundedArray<std::array<bool, kOutlets>, 1, kSequencers> SeqRow;
  BoundedArray<std::int32_t, 1, kSequencers> SeqSavedMask;
  BoundedArray<std::int16_t, 1, kSequencers> SeqReplayStep;
  bool alarm9_on = false, alarm10_on = false;
};

// The thirteen lines of the alert settings, by index; whoever needs a number takes the leading digits.
enum SettingsIndex {
  kAlertType = 0,
  kBlockSource = 1,
  kBlockMessage = 2,
  kBlockPlays = 3,
  kManualMessage = 4,
  kManualPlays = 5,
  kAutoControl = 6,
  kScanHours = 7,
  kScanMinutes = 8,
  kAudibleWarning = 9,
  kRemoteControl = 10,
  kScanCycles = 11,
  kManualStart = 12,
  kSettingsLines = 13
};

struct SettingsState {
  SettingsState() { SettingsLine[kScanCycles] = "1"; }

  std::string data_drive = "C", data_folder = "ZEF_DAT";
  std::string protocol_base;  // the working folder at start, where the journal lives
  BoundedArray<std::string, 0, kSettingsLines - 1> SettingsLine;

  // "C:\ZEF_DAT\" and the rest of a path in the data folder.
  std::string data_path(std::string_view rest) const {
    return data_drive + ":\\" + data_folder + "\\" + std::string(rest);
  }
};

inline constexpr int kBanks = 4;
inline constexpr int kAlgorithmSteps = 120;

struct AlertState {
  bool al_active = false;
  BoundedArray<bool, 1, kBanks> al_bank;
  bool al_alarm_zones = false;
  bool fire_sim = false;
  bool fire_stop = false;
  bool msg_manual = false;
  bool msg_cancel = false;
  bool al_all_on = false;
  // What runs while al_active is set: the zone that the block reported (0: none), and an algorithm, from its
  // first step on.
  std::int16_t block_zone = 0;
  bool alg_running = false, alg_by_contact = false;
  std::int16_t test_zone = 0;  // of the test start that the operator confirmed last
  // How often an alert has switched each of them off.
  int timer_silenced = 0, control_silenced = 0, player_silenced = 0;
  std::array<std::int32_t, kBanks> fire_bits{};
  BoundedArray<std::array<std::int32_t, kContacts>, 1, kBanks> fire_seen;
  std::int16_t di_card0 = -1, di_card1 = -1;
  std::int16_t alg_zone = 1;
  std::int32_t alg_step = 1;
  std::int32_t alg_rep = 0, al_rep = 0, man_rep = 0;
  // Times of day in whole seconds.
  std::int32_t alg_end = 0, al_end = 0, man_end = 0;

  void clear_active() {
    al_active = alg_running = false;
    block_zone = 0;
  }
};

// The steps of the algorithms, by zone of fire and step; an empty text is no such step.
struct AlgorithmState {
  BoundedArray<BoundedArray<std::string, 1, kAlgorithmSteps>, 1, kZones> AlgZoneTable;
  int edition = 0;  // grows with each load or save of the table
};

// The message files, in the order in which they are listed.
struct MessageState {
  std::vector<std::string> MessageLengths;  // "0:00:10" of each file
  std::string mp1_file;                     // the file that MP1 was given last
};

// By terminal, of the last pass of the scan: whether it gave a zone and a number of its own; and the passes
// that it has missed in a row.
struct SupervisionState {
  bool ScanRunning = false;
  BoundedArray<bool, 1, kTerminals> TermZoneOk, TermAddrOk;
  BoundedArray<std::int16_t, 1, kTerminals> TermMissCount;
  std::int32_t TermMissLimit = 1;
  bool auto_mode = false, ManualMode = false;
  std::int32_t NextCheck = 0;  // time of day
};

// An event of the weekly programme: its record, its time of day, its days by bit.
struct ProgrammeEvent {
  std::string tm_rec;
  std::int32_t tm_time = 0;
  std::int16_t tm_days = 0;
};

// Which programme holds from which date to which; dates as they stand in the file.
struct ScheduleEntry {
  std::string sch_name, sch_from, sch_to;
};

struct TimerState {
  bool tm_on = true;
  bool tm_scan = true;   // the nearest event is to be searched for
  bool tm_none = false;  // the programme asked for last has no file

  // The programme, by number of the record from 0. An empty record and one without a day are no events.
  std::vector<ProgrammeEvent> events;
  std::string prog_asked;  // the programme that was loaded last, or was to be
  std::string prog_last;   // the one that was saved last, as it was read
  std::string prog_today;  // the one that the schedule gives for today, empty if none
  std::vector<ScheduleEntry> schedule;

  // The nearest event: its record, its time of day and the date on which it is due.
  std::int32_t tm_next_i = 0, tm_next_s = 0;
  Date tm_next_d{std::chrono::December / 30 / 1899};  // before anything was found
  std::int32_t msg_end = 0;                           // time of day at which the message ends

  // The record of the nearest event; empty when the programme has been replaced by a shorter one since.
  std::string next_record() const {
    const auto i = static_cast<std::size_t>(tm_next_i);
    return i < events.size() ? events[i].tm_rec : "";
  }
};

// The player and its list. Each power-on begins it anew.
struct PlayerState {
  bool mp_pow = false;
  bool mp_play = false, mp_pause = false;
  bool mp_cycle = false;    // behind the last track comes the first
  bool mp_show = false;     // the tracks are on show
  bool mp_lists = false;    // the saved lists are
  bool mp_goto = false;     // the number of a track to jump to is asked for
  bool mp_add = false;      // the panel for adding tracks is open
  bool mp_seek = false;     // the search has been opened; stays set when the operator breaks a search off
  bool mp_svl = false;      // the length of the list is on show
  bool mp_drag = false;     // the position button is being dragged
  bool mp_drv_ok = false;   // the last check found the drive ready
  bool mp_drv_bad = false;  // a drive failed: nothing is loaded until the next power-on

  std::vector<std::string> mp_list;  // full paths; track 1 comes first
  int mp_cnt() const { return static_cast<int>(mp_list.size()); }
  int mp_trk = 1;  // number of the current track, from 1
  // Path of the current track; its number must be one of the list.
  const std::string& track() const { return mp_list.at(static_cast<std::size_t>(mp_trk - 1)); }
  std::string mp_file;  // path of the current track

  float mp_lvl = 10;        // volume 0..10 in steps of 0.5
  float mp_lvl0 = 0;        // the one that the operator set; nothing before the first power-on
  std::int32_t mp_vol = 0;  // hundredths of a decibel
  std::int32_t mp_pct = 100;

  double mp_dur = 0;            // seconds of the current track
  std::int32_t mp_end = 0;      // time of day at which it ends
  std::int32_t held_since = 0;  // time of day at which the pause began

  std::string mp_pl_dir;   // the folder with the tracks of the default list
  std::string mp_pl_name;  // the saved list that is loaded, empty when the tracks come from the folder
  int mp_pl_next = 1;      // number of the next list to be saved
};

inline constexpr int kRestartSlots = 5;

// The scheduled restart. Slots by number.
struct RestartState {
  BoundedArray<std::int16_t, 1, kRestartSlots> ResetOn;    // 1 on; as the file has it
  BoundedArray<std::int32_t, 1, kRestartSlots> ResetTime;  // time of day
  bool ResetAny = false;                                   // the clock is compared
  int unread = 0;                                          // the slot whose time the file does not give
};

struct CalendarState {
  Date journal_day{};  // day of the last header of the journal
};

// A file whose reading left records untaken that are not empty, the one that stopped it included.
struct CutFile {
  std::string file;   // in the data folder, "alarm\\f_al.dat"
  bool cut = false;   // by the last reading
  bool kept = false;  // a save behind a cut reading kept the file as it was then

  // "f_al.dat", for the operator.
  std::string_view name() const { return std::string_view(file).substr(file.rfind('\\') + 1); }
};
// What follows the name of a file that was kept.
inline constexpr std::string_view kKeptEnding = ".bak";

// Files that were once cut in this run of the program.
struct FilesState {
  CutFile* find(std::string_view file) {
    for (auto& known : cut_files)
      if (known.file == file) return &known;
    return nullptr;
  }
  std::vector<CutFile> cut_files;
  int edition = 0;  // grows with each change
};

struct SystemModel {
  LinkState link;
  ZoneState zones;
  TerminalState terminals;
  PaintState paint;
  SourceState sources;
  PowerState power;
  SettingsState settings;
  AlertState alert;
  AlgorithmState algorithms;
  MessageState messages;
  SupervisionState supervision;
  TimerState timer;
  PlayerState player;
  RestartState restart;
  CalendarState calendar;
  FilesState files;
};

}  // namespace evac
