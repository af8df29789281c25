#include "alert/alert_settings.h"

#include "model/text.h"
#include "platform/windows.h"

namespace evac {
namespace {

constexpr int kController = 2, kComputer = 0, kExternal = 1;
constexpr int kMostPlays = 100, kMostHours = 24, kMostMinutes = 59, kMostCycles = 20;

std::string flag_text(bool on) {
  return on ? "1" : "0";
}

// Option i of the group for the line's number i + 1; none of them for another.
void choose(ControlArray<OptionButton>& options, const OptionGroup& group, int number) {
  if (number >= 1 && number <= options.last() + 1)
    options[number - 1].set_value(true);
  else if (OptionButton* chosen = group.chosen())
    chosen->set_value(false);
}

// The number of the option that is on, as a line; `line` as it was when none is.
void take_choice(ControlArray<OptionButton>& options, std::string& line) {
  for (int i = 0; i <= options.last(); ++i)
    if (options[i].value()) line = std::to_string(i + 1);
}

}  // namespace

int AlertSettings::number(SettingsIndex index) const {
  return ClampedNumber(line(index));
}

void AlertSettings::open() {
  store_.LoadSettings();
  store_.LoadAlgorithms();
  preview_.reset();
  show_types();
  show_numbers();
  messages_.LoadMessageList();
  editor_.load();
  form5_.windows().show_modal(form5_);
}

void AlertSettings::show_types() {
  for (Frame* frame : {&form5_.Frm1, &form5_.Frm2, &form5_.Frm3}) frame->set_enabled(true);
  choose(form5_.Opt1, form5_.types, number(kAlertType));
  if (const auto* type = form5_.types.chosen()) type_chosen(*type->index());
  choose(form5_.Opt2, form5_.sources, number(kBlockSource));
}

void AlertSettings::show_numbers() {
  const auto show_plays = [](ScrollBar& bar, int plays) {
    if (plays > 0 && plays <= kMostPlays) bar.set_value(plays);
  };
  show_plays(form5_.VS1, number(kBlockPlays));
  show_plays(form5_.VS2, number(kManualPlays));
  form5_.ChkM.set_value(number(kAutoControl) > 0);
  scan_clicked();
  if (const int hours = number(kScanHours); hours <= kMostHours) form5_.VSH.set_value(hours);
  if (const int minutes = number(kScanMinutes); minutes <= kMostMinutes) form5_.VSM.set_value(minutes);
  form5_.ChkZ.set_value(number(kAudibleWarning) == 1);
  form5_.ChkUK.set_value(number(kRemoteControl) == 1);
  form5_.ChkA.set_value(number(kManualStart) == 1);
  const int cycles = number(kScanCycles);
  form5_.VSkS.set_value(cycles >= 1 && cycles <= kMostCycles ? cycles : 1);
}

void AlertSettings::type_chosen(int i) {
  Frame* const frames[] = {&form5_.Frm1, &form5_.Frm2, &form5_.Frm3};
  for (int n = 0; n < 3; ++n) frames[n]->set_enabled(n == i);
  if (i == kController) form5_.Opt2[kComputer].set_value(true);
  form5_.Opt2[kExternal].set_enabled(i != kController);
}

void AlertSettings::source_chosen(int i) {
  const bool computer = i == kComputer;
  form5_.CmbF3.set_enabled(computer);
  form5_.CmdSound3.set_enabled(computer);
  form5_.CmbF1.set_enabled(!computer);
  form5_.CmdSound1.set_enabled(!computer);
}

void AlertSettings::scan_clicked() {
  for (ScrollBar* bar : {&form5_.VSH, &form5_.VSM, &form5_.VSkS}) bar->set_enabled(form5_.ChkM.value());
}

void AlertSettings::from_changed() {
  form5_.LblFr.set_caption(std::to_string(form5_.VsFr.value()));
  if (form5_.VsFr.value() > form5_.VsTo.value()) form5_.VsTo.set_value(form5_.VsFr.value());
}

void AlertSettings::to_changed() {
  form5_.LblTo.set_caption(std::to_string(form5_.VsTo.value()));
  if (form5_.VsTo.value() < form5_.VsFr.value()) form5_.VsFr.set_value(form5_.VsTo.value());
}

void AlertSettings::save() {
  auto& lines = settings_.SettingsLine;
  take_choice(form5_.Opt1, lines[kAlertType]);
  if (form5_.Opt1[kController].value()) store_.SaveAlgorithms(editor_.lines());
  if (!take_source()) return;
  lines[kBlockMessage] = form5_.CmbF1.text();
  lines[kBlockPlays] = form5_.LblKl.caption();
  lines[kManualMessage] = form5_.CmbF2.text();
  lines[kManualPlays] = form5_.Lblkl2.caption();
  alert_.man_rep = number(kManualPlays);
  if (!take_scan()) return;
  lines[kRemoteControl] = flag_text(form5_.ChkUK.value());
  lines[kScanCycles] = form5_.LblKs.caption();
  lines[kManualStart] = flag_text(form5_.ChkA.value());
  show_on_main_window();
  store_.SaveSettings();
  supervision_.NextCheck = later_in_day(second_of_day(loop_.wall()), scan_period(settings_));
}

bool AlertSettings::take_source() {
  take_choice(form5_.Opt2, settings_.SettingsLine[kBlockSource]);
  if (!form5_.Opt2[kComputer].value()) return true;
  if (sources_.ch_computer == 0) {
    boxes_.message("В настройках оборудования не выбран компьютер");
    return false;
  }
  if (sources_.vol_computer == 0) {
    boxes_.message(join("Уровень звука в ", sources_.ch_computer, " канале =0"));
    return false;
  }
  return true;
}

bool AlertSettings::take_scan() {
  auto& lines = settings_.SettingsLine;
  const bool on = form5_.ChkM.value();
  lines[kAutoControl] = flag_text(on);
  supervision_.auto_mode = on;
  if (on) {
    lines[kScanHours] = std::to_string(form5_.VSH.value());
    lines[kScanMinutes] = std::to_string(form5_.VSM.value());
    if (form5_.VSH.value() == 0 && form5_.VSM.value() == 0) {
      boxes_.message("Установите период сканирования");
      return false;
    }
  }
  control_tab_.CmdZ.set_caption(on ? "ВКЛ" : "ВЫКЛ");
  control_tab_.CmdZ.set_picture(on ? pictures_.Pct_Kon : pictures_.Pct_Koff);
  lines[kAudibleWarning] = flag_text(on && form5_.ChkZ.value());
  return true;
}

void AlertSettings::show_on_main_window() {
  control_tab_.Timer14.set_enabled(form5_.ChkUK.value());
  supervision_.TermMissLimit = number(kScanCycles);
  alarm_tab_.CmdDem.set_enabled(form5_.ChkA.value());
  alarm_tab_.CmbF.set_text(line(kManualMessage));
  alarm_tab_.VS1.set_value(number(kManualPlays));
}

}  // namespace evac
