// The load event of Form1, in its order, and the clockwork of the timers.
#include "app/console.h"
#include "console/channel_colors.h"
#include "model/text.h"

namespace evac {
namespace {

constexpr std::string_view kDataDrive = "C", kDataFolder = "ZEF_DAT";
constexpr std::string_view kProtocolFolder = "protocol";
constexpr std::string_view kDataSubfolders[] = {"message", "alarm", "timer"};

constexpr std::string_view kPortSettings = "4800,o,8,1";

constexpr std::string_view kMonths[] = {"Января", "Февраля", "Марта",    "Апреля",  "Мая",    "Июня",
                                        "Июля",   "Августа", "Сентября", "Октября", "Ноября", "Декабря"};
constexpr std::string_view kWeekdays[] = {"ПОНЕДЕЛЬНИК", "ВТОРНИК", "СРЕДА",      "ЧЕТВЕРГ",
                                          "ПЯТНИЦА",     "СУББОТА", "ВОСКРЕСЕНЬЕ"};

constexpr int kCardType = 17;
constexpr std::int32_t kNoInputsYet = -144000;

// Every timer of Form1: milliseconds, and whether it runs from the start. Timer14 follows a setting instead.
struct ClockworkEntry {
  std::string_view timer;
  int interval;
  bool at_start;
};
constexpr ClockworkEntry kClockwork[] = {
    {"Timer1", 20, true},     {"Timer2", 100, true},   {"Timer3", 1000, true},   {"Timer4", 100, true},
    {"Timer5", 100, false},   {"Timer6", 100, false},  {"Timer7", 100, false},   {"Timer8", 1000, true},
    {"Timer9", 1000, false},  {"Timer10", 1000, true}, {"Timer11", 1000, false}, {"Timer13", 500, true},
    {"Timer14", 1000, false}, {"Tmr1", 500, false},    {"Tmr2", 1000, false}};

Timer& timer_named(Form& form, std::string_view name) {
  return dynamic_cast<Timer&>(*form.find(name));
}

// Whether a folder lister shows that subfolder: paths are cut behind their last backslash, letters count as
// they stand on a disk that does not tell case apart.
bool lists(const FolderLister& lister, std::string_view folder) {
  for (const std::string& path : lister.rows())
    if (lower_case(path.substr(path.rfind('\\') + 1)) == folder) return true;
  return false;
}

}  // namespace

void Console::load() {
  for (const auto& entry : kClockwork) timer_named(form1_, entry.timer).set_interval(entry.interval);

  make_folders();
  link_.reset_receiver();
  model_.link.poll_answer_state = 0;
  set_defaults();
  open_port();
  model_.terminals.term_file_no = 1;
  form1_.LblCD.set_caption("CD-player");
  form1_.LblMP3.set_caption("MP3-player");
  form1_.SourcesTab::LblT.set_caption("AM Tuner");
  model_.calendar.started = machine_.loop.wall();
  model_.calendar.journal_day = date_of(model_.calendar.started - std::chrono::days(1));
  model_.timer.tm_none = false;
  model_.settings.SettingsLine[kScanCycles] = "1";
  load_settings();
  model_.link.link_mode_text = "Данные каналов";
  model_.link.status_line_count = 0;
  model_.power.SeqReplayStep.fill(0);
  model_.paint.ColorButtonFace = form1_.SSTab1.back_color();
  take_alert_settings();
  register_cards();
  for (std::size_t i = 0; i < model_.alert.bit_mask.size(); ++i)
    model_.alert.bit_mask[i] = static_cast<std::int32_t>(std::uint32_t{1} << i);
  paint_legends();
  audio_matrix_.choose_defaults();
  auto& calendar = model_.calendar;
  calendar.MonthName[0] = calendar.WeekDayName[0] = "0";
  std::copy(std::begin(kMonths), std::end(kMonths), calendar.MonthName.begin() + 1);
  std::copy(std::begin(kWeekdays), std::end(kWeekdays), calendar.WeekDayName.begin() + 1);
  journal_.JournalLine("Программа загружена");

  windows_.show(form1_);
  set_timers();
}

void Console::make_folders() {
  Files& files = machine_.files;
  auto& settings = model_.settings;
  settings.data_drive = kDataDrive;
  settings.data_folder = kDataFolder;
  const auto make = [&](const std::string& path) {
    if (files.make_folder(path) != kNoError)
      throw Fault(FaultNumber::kPathNotFound, "Path not found: " + path);
  };
  const std::string data_folder = join(kDataDrive, ":\\", kDataFolder);
  if (!files.is_folder(data_folder)) make(data_folder);
  form1_.Dir3.point_at(data_folder);
  settings.protocol_base = machine_.process.working_folder();
  form1_.Dir1.point_at(settings.protocol_base);
  if (!lists(form1_.Dir1, kProtocolFolder)) make(join(settings.protocol_base, "\\", kProtocolFolder));
  for (const auto folder : kDataSubfolders)
    if (!lists(form1_.Dir3, folder)) make(join(data_folder, "\\", folder));
}

void Console::set_defaults() {
  auto& sources = model_.sources;
  sources.cd_track = sources.mp3_track = sources.tuner_preset = 1;
  sources.tuner_band = 2;
  model_.alert.alg_zone = 1;
  model_.alert.alg_step = 1;
  auto& terminals = model_.terminals;
  terminals.term_count = 1;
  terminals.selected_count = 0;
  terminals.sel_channel = 0;
  model_.zones.AllZonesOn = model_.zones.ChosenZonesOn = false;
  model_.alert.al_all_on = false;
  model_.alert.di_last.fill(kNoInputsYet);
}

void Console::open_port() {
  SerialPort& port = machine_.port;
  port.set_port(1);
  port.open();
  port.set_settings(std::string(kPortSettings));
  port.read();
}

void Console::load_settings() {
  alert_store_.LoadAlgorithms();
  alert_store_.LoadSettings();
  terminal_settings_.LoadTermSettings(model_.terminals.term_file_no);
  zone_settings_.LoadZoneSettings();
  equipment_.load(EquipmentSettings::Reading::kAtStart);
  terminal_names_.load();
  zone_names_.load();
  terminal_console_.start();
  message_lists_.LoadMessageList();
  zone_console_.PaintZoneChannels();
  zone_console_.InitZoneRows();
}

void Console::take_alert_settings() {
  const auto& line = model_.settings.SettingsLine;
  model_.alert.al_rep = ClampedNumber(line[kBlockPlays]);
  model_.alert.man_rep = ClampedNumber(line[kManualPlays]);
  if (const int plays = model_.alert.man_rep; plays > 0 && plays < 101) form1_.VS1.set_value(plays);
  model_.timer.tm_on = model_.timer.tm_scan = true;
  auto& supervision = model_.supervision;
  supervision.NextCheck = later_in_day(second_of_day(machine_.loop.wall()), scan_period(model_.settings));
  supervision.auto_mode = ClampedNumber(line[kAutoControl]) != 0;
  form1_.CmdZ.set_picture(supervision.auto_mode ? form1_.Pct_Kon : form1_.Pct_Koff);
  form1_.CmdZ.set_caption(supervision.auto_mode ? "ВКЛ" : "ВЫКЛ");
  form1_.Timer14.set_enabled(line[kRemoteControl] == "1");
  supervision.TermMissLimit = ClampedNumber(line[kScanCycles]);
  form1_.CmdDem.set_enabled(line[kManualStart] == "1");
}

void Console::register_cards() {
  auto& alert = model_.alert;
  alert.di_card0 = machine_.cards.register_card(kCardType, 0);
  alert.di_card1 = machine_.cards.register_card(kCardType, 1);
}

void Console::paint_legends() {
  paint_legend(form1_.L1);
  paint_legend(form1_.L2);
}

void Console::set_timers() {
  for (const auto& entry : kClockwork)
    if (entry.at_start) timer_named(form1_, entry.timer).set_enabled(true);
}

}  // namespace evac
