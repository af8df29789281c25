// The load event of Form1, in its order, and the clockwork of the timers.
#include "app/console.h"
#include "console/channel_colors.h"
#include "model/text.h"

namespace evac {
namespace {

constexpr std::string_view kProtocolFolder = "protocol";
constexpr std::string_view kDataSubfolders[] = {"message", "alarm", "timer"};

constexpr std::string_view kPortSettings = "4800,o,8,1";

constexpr int kCardType = 17;

// Whether a folder lister shows that subfolder: paths are cut behind their last backslash, letters count as
// they stand on a disk that does not tell case apart.
bool lists(const FolderLister& lister, std::string_view folder) {
  for (const std::string& path : lister.rows())
    if (lower_case(path.substr(path.rfind('\\') + 1)) == folder) return true;
  return false;
}

}  // namespace

void Console::load() {
  make_folders();
  open_port();
  load_settings();
  take_alert_settings();
  register_cards();
  paint_legends();
  audio_matrix_.choose_defaults();
  terminal_scan_.start();
  clock_.start();
  journal_.JournalLine("Программа загружена");

  watch_.begin();
  windows_.show(forms_.form1);
  start_timers();
}

void Console::make_folders() {
  Files& files = machine_.files;
  auto& settings = model_.settings;
  const auto make = [&](const std::string& path) {
    if (files.make_folder(path) != kNoError)
      throw Fault(FaultNumber::kPathNotFound, "Path not found: " + path);
  };
  const std::string data_folder = join(settings.data_drive, ":\\", settings.data_folder);
  if (!files.is_folder(data_folder)) make(data_folder);
  forms_.form1.Dir3.point_at(data_folder);
  settings.protocol_base = machine_.process.working_folder();
  forms_.form1.Dir1.point_at(settings.protocol_base);
  if (!lists(forms_.form1.Dir1, kProtocolFolder)) make(join(settings.protocol_base, "\\", kProtocolFolder));
  for (const auto folder : kDataSubfolders)
    if (!lists(forms_.form1.Dir3, folder)) make(join(data_folder, "\\", folder));
}

void Console::open_port() {
  SerialPort& port = machine_.port;
  port.set_port(1);
  port.open();
  port.set_settings(std::string(kPortSettings));
  port.read();
}

void Console::load_settings() {
  alert_settings_.load_algorithms();
  alert_settings_.load_settings();
  timer_.programmes.load_day();
  terminal_settings_.LoadTermSettings(model_.terminals.term_file_no);
  zone_settings_.LoadZoneSettings();
  equipment_.load(EquipmentSettings::Reading::kAtStart);
  terminal_names_.load();
  zone_names_.load();
  terminal_console_.start();
  message_lists_.LoadMessageList();
  transport_.show_off();
  zone_console_.PaintZoneChannels();
  zone_console_.InitZoneRows();
  restart_times_.LoadResetTimes();
}

void Console::take_alert_settings() {
  const auto& line = model_.settings.SettingsLine;
  model_.alert.al_rep = Number(line[kBlockPlays]);
  model_.alert.man_rep = Number(line[kManualPlays]);
  if (const int plays = model_.alert.man_rep; plays > 0 && plays < 101) forms_.form1.VS1.set_value(plays);
  auto_control_.start();
  forms_.form1.Timer14.set_enabled(line[kRemoteControl] == "1");
  if (!line[kScanCycles].empty()) model_.supervision.TermMissLimit = Number(line[kScanCycles]);
  forms_.form1.CmdDem.set_enabled(line[kManualStart] == "1");
}

void Console::register_cards() {
  auto& alert = model_.alert;
  alert.di_card0 = machine_.cards.register_card(kCardType, 0);
  alert.di_card1 = machine_.cards.register_card(kCardType, 1);
}

void Console::paint_legends() {
  paint_legend(forms_.form1.L1);
  paint_legend(forms_.form1.L2);
}

// The timers that run from the start; Timer14 follows a setting.
void Console::start_timers() {
  Form1& form1 = forms_.form1;
  for (Timer* timer : {&form1.Timer1, &form1.Timer2, &form1.Timer3, &form1.Timer4, &form1.Timer8,
                       &form1.Timer10, &form1.Timer13})
    timer->set_enabled(true);
}

}  // namespace evac
