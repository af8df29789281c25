#include "console/cell_settings.h"

#include <algorithm>

#include "console/channel_colors.h"
#include "model/text.h"
#include "platform/windows.h"
#include "store/record_number.h"
#include "store/settings_files.h"

namespace evac {
namespace {

constexpr std::string_view kOn = "ВКЛ", kOff = "ВЫКЛ";
constexpr std::int16_t kNotSet = 0, kSwitchedOff = 255;

}  // namespace

bool CellSettings::is_on(int i) {
  return cell(i).tool_tip() == kOn;
}

void CellSettings::show_on(int i) {
  cell(i).set_tool_tip(kOn);
  cell(i).set_back_color(Color::kGrey);
}

void CellSettings::show_off(int i) {
  cell(i).set_tool_tip(kOff);
  cell(i).set_back_color(Color::kWindow);
}

void CellSettings::take_channel(int i, int channel) {
  SetChannelColor(paint_, cell(i), channel);
  cells_.working[i] = static_cast<std::int16_t>(channel);
}

void CellSettings::toggle(int i) {
  if (is_on(i)) {
    show_off(i);
    cells_.working[i] = kSwitchedOff;
  } else {
    show_on(i);
  }
}

void CellSettings::press(int i, const MousePress& press) {
  if (!press.plain_right()) return;
  menu_.clear_marks();
  if (is_on(i)) menu_.ask(cells_.used[i], [this, i](int channel) { take_channel(i, channel); });
}

void CellSettings::leave() {
  std::ranges::fill(cells_.working.items, kNotSet);
  cells_.window.windows().hide(cells_.window);
}

int CellSettings::load(const std::string& path) {
  int highest_on = 0;
  int i = 0;
  for (const auto& record : read_cells(files_, path, count())) {
    ++i;
    const bool on = !record.label.empty();
    if (cells_.buttons_follow_file) {
      cells_.buttons[i].set_enabled(on);
      cells_.buttons[i].set_caption(record.label);
    }
    if (!on) {
      show_off(i);
      continue;
    }
    highest_on = i;
    cell(i).set_caption(record.label);
    show_on(i);
    const auto channel = record_number16(record.channel);
    if (!channel) break;
    cells_.used[i] = *channel;
  }
  return highest_on;
}

int CellSettings::save(const std::string& path) {
  int highest_on = 0;
  std::vector<CellRecord> records(static_cast<std::size_t>(count()));
  for (int i = 1; i <= count(); ++i) {
    CellRecord& record = records[static_cast<std::size_t>(i - 1)];
    Button& button = cells_.buttons[i];
    cells_.used[i] = kNotSet;
    button.set_enabled(is_on(i));
    if (!is_on(i)) {
      button.set_caption("");
      button.set_back_color(kMainBackground);
      continue;
    }
    highest_on = i;
    record.label = Trim(cell(i).caption());
    button.set_caption(record.label);
    const std::int16_t channel = cells_.working[i];
    if (channel < 1 || channel == kSwitchedOff) continue;
    record.channel = std::to_string(channel);
    cells_.used[i] = channel;
  }
  write_cells(files_, path, records);
  return highest_on;
}

ZoneSettings::ZoneSettings(ZoneState& zones, const SettingsState& settings, PaintState& paint, Files& files,
                           ChannelMenu& menu, Form33& form, ZonesTab& tab)
    : CellSettings({form, {zones.ZoneChan}, {zones.ZoneChanSet}, tab.CmdAZ, false}, paint, files, menu),
      zones_(zones),
      settings_(settings),
      form_(form) {}

void ZoneSettings::LoadZoneSettings() {
  load(zone_file(settings_));
}

void ZoneSettings::prepare() {
  LoadZoneSettings();
  paint_legend(form_.L1);
  for (int z = 1; z <= count(); ++z)
    if (zones_.ZoneChan[z] < 1)
      show_off(z);
    else
      take_channel(z, zones_.ZoneChan[z]);
}

void ZoneSettings::save() {
  CellSettings::save(zone_file(settings_));
}

TerminalSettings::TerminalSettings(TerminalState& terminals, const SettingsState& settings, PaintState& paint,
                                   Files& files, ChannelMenu& menu, Form55& form, TerminalsTab& tab)
    : CellSettings({form, {terminals.TermChan}, {terminals.TermChanSet}, tab.CmdAT, true}, paint, files,
                   menu),
      terminals_(terminals),
      settings_(settings),
      form_(form),
      tab_(tab) {}

void TerminalSettings::LoadTermSettings(int n) {
  terminals_.term_count = static_cast<std::int16_t>(load(preset_file(settings_, n)));
}

void TerminalSettings::ShowTermChannels() {
  for (int t = 1; t <= count(); ++t) {
    terminals_.TermChanSet[t] = kSwitchedOff;
    if (terminals_.TermChan[t] > 0)
      take_channel(t, terminals_.TermChan[t]);
    else
      cell(t).set_back_color(is_on(t) ? Color::kGrey : Color::kWindow);
  }
}

void TerminalSettings::prepare() {
  paint_legend(form_.L1);
  LoadTermSettings(terminals_.term_file_no);
  ShowTermChannels();
  form_.VsUs.set_value(terminals_.term_file_no);
  form_.LblUs.set_caption(std::to_string(terminals_.term_file_no));
}

void TerminalSettings::save() {
  terminals_.term_count =
      static_cast<std::int16_t>(CellSettings::save(preset_file(settings_, terminals_.term_file_no)));
}

void TerminalSettings::choose_preset() {
  const int preset = form_.VsUs.value();
  terminals_.TermChan.fill(0);
  terminals_.term_file_no = static_cast<std::int16_t>(preset);
  tab_.VsUs.set_value(preset);
  form_.LblUs.set_caption(std::to_string(preset));
  LoadTermSettings(preset);
  ShowTermChannels();
}

}  // namespace evac
