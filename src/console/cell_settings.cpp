#include "console/cell_settings.h"

#include <algorithm>

#include "console/channel_colors.h"
#include "model/text.h"
#include "platform/windows.h"
#include "store/settings_files.h"

namespace evac {
namespace {

constexpr std::string_view kOn = "ВКЛ", kOff = "ВЫКЛ";

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
  CellWindow& window = cells_.window;
  for (auto& entry : window.ch) entry.set_value(false);
  if (!is_on(i)) return;
  if (is_channel(cells_.used[i])) window.ch[cells_.used[i]].set_value(true);
  menu_cell_ = i;
  window.MnuSet.show();
}

void CellSettings::choose_channel(int channel) {
  if (menu_cell_ > 0) take_channel(menu_cell_, channel);
}

void CellSettings::leave() {
  std::ranges::fill(cells_.working.items, kNotSet);
  cells_.window.windows().hide(cells_.window);
}

int CellSettings::load(std::string_view file) {
  std::vector<CellRecord> records;
  // A file that can't be read ends the load silently: what was loaded before stays.
  (void)read_cells(folder_, file, count(), records);
  int highest_on = 0;
  int i = 0;
  for (const auto& record : records) {
    ++i;
    const bool on = !record.label.empty();
    if (cells_.in_use) cells_.in_use->set(zone_bit(i), on);
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
    cells_.used[i] = record.channel;
  }
  return highest_on;
}

int CellSettings::save(std::string_view file) {
  int highest_on = 0;
  std::vector<CellRecord> records(static_cast<std::size_t>(count()));
  for (int i = 1; i <= count(); ++i) {
    CellRecord& record = records[static_cast<std::size_t>(i - 1)];
    Button& button = cells_.buttons[i];
    cells_.used[i] = kNotSet;
    button.set_enabled(is_on(i));
    if (cells_.in_use) cells_.in_use->set(zone_bit(i), is_on(i));
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
    record.channel = channel;
    cells_.used[i] = channel;
  }
  // What can't be written holds in the windows and in the model all the same, with no message.
  (void)write_cells(folder_, file, records);
  return highest_on;
}

}  // namespace evac
