#include "alert/alert_settings.h"

#include "model/text.h"
#include "platform/windows.h"

namespace evac {
namespace {

constexpr int kController = 2, kComputer = 0, kExternal = 1;
constexpr int kMostPlays = 100, kMostHours = 24, kMostMinutes = 59, kMostCycles = 20;

// Told before the number of an error; the comma is as it stands.
constexpr std::string_view kSettingsReadFault = "Ошибка чтения файла f_al_str,dat ";
constexpr std::string_view kSettingsWriteFault = "Ошибка записи f_al_str.dat ";
constexpr std::string_view kAlgorithmReadFault = "Ошибка чтения файла f_al.dat ";
constexpr std::string_view kAlgorithmWriteFault = "Ошибка записи в файл f_al.dat ";

std::string flag_text(bool on) {
  return on ? "1" : "0";
}

// Option i for the line's number i + 1; none of them for another.
void choose(ControlArray<OptionButton>& options, int number) {
  if (number >= 1 && number <= options.last() + 1) options[number - 1].set_value(true);
}

// The number of the option that is on, as a line; `line` as it was when none is.
void take_choice(ControlArray<OptionButton>& options, std::string& line) {
  for (int i = 0; i <= options.last(); ++i)
    if (options[i].value()) line = std::to_string(i + 1);
}

}  // namespace

int AlertSettings::number(SettingsIndex index) const {
  return Number(line(index));
}

void AlertSettings::tell(std::string_view what, FileError error) {
  if (error != kNoError) doors_.boxes.message(join(what, error));
}

void AlertSettings::load_settings() {
  tell(kSettingsReadFault, doors_.store.LoadSettings());
}

void AlertSettings::load_algorithms() {
  tell(kAlgorithmReadFault, doors_.store.LoadAlgorithms());
}

void AlertSettings::open() {
  load_settings();
  load_algorithms();
  doors_.preview.reset();
  show_types();
  show_numbers();
  doors_.messages.LoadMessageList();
  doors_.editor.load();
  doors_.form5.windows().show_modal(doors_.form5);
}

void AlertSettings::show_types() {
  // As when the window was made, whatever an earlier opening left: each option that the lines choose then
  // raises its click.
  Form5& form5 = doors_.form5;
  for (auto& option : form5.Opt1) option.set_value(false);
  for (auto& option : form5.Opt2) option.set_value(false);
  for (Control* control :
       std::initializer_list<Control*>{&form5.Frm1, &form5.Frm2, &form5.Frm3, &form5.Opt2[kExternal],
                                       &form5.CmbF1, &form5.CmbF3, &form5.CmdSound1, &form5.CmdSound3})
    control->set_enabled(true);
  choose(form5.Opt1, number(kAlertType));
  choose(form5.Opt2, number(kBlockSource));
}

void AlertSettings::show_numbers() {
  for (ScrollBar* bar : {&doors_.form5.VS1, &doors_.form5.VS2, &doors_.form5.VSH, &doors_.form5.VSM})
    bar->set_value(bar->least());
  const auto show_plays = [](ScrollBar& bar, int plays) {
    if (plays > 0 && plays <= kMostPlays) bar.set_value(plays);
  };
  show_plays(doors_.form5.VS1, number(kBlockPlays));
  show_plays(doors_.form5.VS2, number(kManualPlays));
  doors_.form5.ChkM.set_value(number(kAutoControl) > 0);
  scan_clicked();
  if (const int hours = number(kScanHours); hours <= kMostHours) doors_.form5.VSH.set_value(hours);
  if (const int minutes = number(kScanMinutes); minutes <= kMostMinutes) doors_.form5.VSM.set_value(minutes);
  doors_.form5.ChkZ.set_value(number(kAudibleWarning) == 1);
  doors_.form5.ChkUK.set_value(number(kRemoteControl) == 1);
  doors_.form5.ChkA.set_value(number(kManualStart) == 1);
  const int cycles = number(kScanCycles);
  doors_.form5.VSkS.set_value(cycles >= 1 && cycles <= kMostCycles ? cycles : 1);
}

void AlertSettings::type_chosen(int i) {
  Frame* const frames[] = {&doors_.form5.Frm1, &doors_.form5.Frm2, &doors_.form5.Frm3};
  for (int n = 0; n < 3; ++n) frames[n]->set_enabled(n == i);
  if (i == kController) doors_.form5.Opt2[kComputer].set_value(true);
  doors_.form5.Opt2[kExternal].set_enabled(i != kController);
}

void AlertSettings::source_chosen(int i) {
  const bool computer = i == kComputer;
  doors_.form5.CmbF3.set_enabled(computer);
  doors_.form5.CmdSound3.set_enabled(computer);
  doors_.form5.CmbF1.set_enabled(!computer);
  doors_.form5.CmdSound1.set_enabled(!computer);
}

void AlertSettings::scan_clicked() {
  for (ScrollBar* bar : {&doors_.form5.VSH, &doors_.form5.VSM, &doors_.form5.VSkS})
    bar->set_enabled(doors_.form5.ChkM.value());
}

void AlertSettings::from_changed() {
  doors_.form5.LblFr.set_caption(std::to_string(doors_.form5.VsFr.value()));
  if (doors_.form5.VsFr.value() > doors_.form5.VsTo.value())
    doors_.form5.VsTo.set_value(doors_.form5.VsFr.value());
}

void AlertSettings::to_changed() {
  doors_.form5.LblTo.set_caption(std::to_string(doors_.form5.VsTo.value()));
  if (doors_.form5.VsTo.value() < doors_.form5.VsFr.value())
    doors_.form5.VsFr.set_value(doors_.form5.VsTo.value());
}

void AlertSettings::save() {
  auto& lines = doors_.settings.SettingsLine;
  take_choice(doors_.form5.Opt1, lines[kAlertType]);
  if (doors_.form5.Opt1[kController].value())
    tell(kAlgorithmWriteFault, doors_.store.SaveAlgorithms(doors_.editor.lines()));
  if (!take_source()) return;
  lines[kBlockMessage] = doors_.form5.CmbF1.text();
  lines[kBlockPlays] = doors_.form5.LblKl.caption();
  lines[kManualMessage] = doors_.form5.CmbF2.text();
  lines[kManualPlays] = doors_.form5.Lblkl2.caption();
  doors_.alert.man_rep = number(kManualPlays);
  if (!take_scan()) return;
  lines[kRemoteControl] = flag_text(doors_.form5.ChkUK.value());
  lines[kScanCycles] = doors_.form5.LblKs.caption();
  lines[kManualStart] = flag_text(doors_.form5.ChkA.value());
  show_on_main_window();
  tell(kSettingsWriteFault, doors_.store.SaveSettings());
  doors_.control.set_next_check();
}

bool AlertSettings::take_source() {
  take_choice(doors_.form5.Opt2, doors_.settings.SettingsLine[kBlockSource]);
  if (!doors_.form5.Opt2[kComputer].value()) return true;
  if (doors_.sources.ch_computer == 0) {
    doors_.boxes.message("В настройках оборудования не выбран компьютер");
    return false;
  }
  if (doors_.sources.vol_computer == 0) {
    doors_.boxes.message(join("Уровень звука в ", doors_.sources.ch_computer, " канале =0"));
    return false;
  }
  return true;
}

bool AlertSettings::take_scan() {
  auto& lines = doors_.settings.SettingsLine;
  const bool on = doors_.form5.ChkM.value();
  lines[kAutoControl] = flag_text(on);
  doors_.supervision.auto_mode = on;
  if (on) {
    lines[kScanHours] = std::to_string(doors_.form5.VSH.value());
    lines[kScanMinutes] = std::to_string(doors_.form5.VSM.value());
    if (doors_.form5.VSH.value() == 0 && doors_.form5.VSM.value() == 0) {
      doors_.boxes.message("Установите период сканирования");
      return false;
    }
  }
  doors_.control.show_mode();
  lines[kAudibleWarning] = flag_text(on && doors_.form5.ChkZ.value());
  return true;
}

void AlertSettings::show_on_main_window() {
  doors_.monitor_panel.Timer14.set_enabled(doors_.form5.ChkUK.value());
  doors_.supervision.TermMissLimit = number(kScanCycles);
  doors_.alarm_tab.CmdDem.set_enabled(doors_.form5.ChkA.value());
  doors_.alarm_tab.CmbF.set_text(line(kManualMessage));
  doors_.alarm_tab.VS1.set_value(number(kManualPlays));
}

}  // namespace evac
