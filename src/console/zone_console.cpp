#include "console/zone_console.h"

#include <algorithm>

#include "model/text.h"

namespace evac {
namespace {

constexpr int kFirstVolume = 32;  // of each row at start
constexpr int kMostVolume = 32;
constexpr std::string_view kSwitchTip = "Вкл/Выкл левой кнопкой мыши";
constexpr std::string_view kStepTip = "Увеличение/Уменьшение левой/правой кнопкой мыши";

// The number that a row shows; 0 for an empty caption.
int shown(const Control& control) {
  return Number(control.caption());
}

// One step up, from the most round to 1; a 0 goes on to 1.
void step_up(Button& button, int most) {
  const int value = shown(button);
  button.set_caption(std::to_string(value == most ? 1 : value + 1));
}

// One step down, from 1 round to the most; a 0 stays.
void step_down(Button& button, int most) {
  const int value = shown(button);
  button.set_caption(std::to_string(value == 1 ? most : std::max(value - 1, 0)));
}

}  // namespace

void ZoneConsole::PaintZoneChannels() {
  for (auto& button : tab_.CmdCh) SetChannelColor(paint_, button, shown(button));
}

void ZoneConsole::InitZoneRows() {
  for (int z = 1; z <= kZones; ++z) {
    tab_.CmdVol[z].set_caption(std::to_string(kFirstVolume));
    tab_.CmdCh[z].set_caption("1");
    tab_.CmdAZ[z].set_caption(std::to_string(z));
    tab_.CmdAZ[z].set_tool_tip(kSwitchTip);
    tab_.CmdCh[z].set_tool_tip(kStepTip);
    tab_.CmdVol[z].set_tool_tip(kStepTip);
  }
}

void ZoneConsole::toggle(int z) {
  zones_.ZoneOn[z] = !zones_.ZoneOn[z];
  if (!zones_.ZoneOn[z]) {
    tab_.CmdAZ[z].set_back_color(kMainBackground);
    return;
  }
  tab_.CmdAZ[z].set_back_color(tab_.CmdCh[z].back_color());
  link_.SendZoneSet(shown(tab_.CmdCh[z]), shown(tab_.CmdVol[z]), z);
}

void ZoneConsole::next_channel(int z) {
  step_up(tab_.CmdCh[z], kChannels);
  SetChannelColor(paint_, tab_.CmdCh[z], shown(tab_.CmdCh[z]));
}

void ZoneConsole::previous_channel(int z, const MousePress& press) {
  if (!press.plain_right()) return;
  step_down(tab_.CmdCh[z], kChannels);
  SetChannelColor(paint_, tab_.CmdCh[z], shown(tab_.CmdCh[z]));
}

void ZoneConsole::next_volume(int z) {
  step_up(tab_.CmdVol[z], kMostVolume);
}

void ZoneConsole::previous_volume(int z, const MousePress& press) {
  if (press.plain_right()) step_down(tab_.CmdVol[z], kMostVolume);
}

void ZoneConsole::send_all() {
  for (int z = 1; z <= kZones; ++z) {
    tab_.CmdCh[z].set_back_color(kMainBackground);
    const int channel = zones_.ZoneChan[z];
    if (channel < 1 && zones_.ZoneVolScan[z] < 1) continue;
    // A channel of a damaged file has no slider to take a volume from.
    if (channel < volumes_.first() || channel > volumes_.last()) continue;
    tab_.CmdVol[z].set_caption(volumes_[channel].caption());
    show_channel(z, channel);
    link_.SendZoneSet(channel, shown(volumes_[channel]), z);
  }
}

void ZoneConsole::show_channel(int z, int channel) {
  tab_.CmdCh[z].set_caption(std::to_string(channel));
  SetChannelColor(paint_, tab_.CmdCh[z], channel);
  SetChannelColor(paint_, tab_.CmdAZ[z], channel);
}

void ZoneConsole::take_volumes(const ControlArray<Label>& volumes) {
  for (int z = 1; z <= kZones; ++z) {
    const int channel = shown(tab_.CmdCh[z]);
    if (channel < volumes.first() || channel > volumes.last()) continue;
    tab_.CmdVol[z].set_caption(volumes[channel].caption());
    SetChannelColor(paint_, tab_.CmdCh[z], channel);
  }
}

void ZoneConsole::toggle_all() {
  toggle_group(zones_.AllZonesOn, alarm_tab_.CmdAG, [](int channel) { return channel > 0; });
}

void ZoneConsole::toggle_chosen() {
  toggle_group(zones_.ChosenZonesOn, alarm_tab_.CmdTG,
               [this](int channel) { return channel == sources_.ch_computer; });
}

template <class Chosen>
void ZoneConsole::toggle_group(bool& on, Button& button, Chosen chosen) {
  if (on) {
    on = false;
    button.set_back_color(paint_.ColorButtonFace);
    lamps_.all_idle();
    link_.SendAllStop();
    return;
  }
  if (!computer_ready()) return;
  on = true;
  button.set_back_color(Color::kOn);
  for (int z = 1; z <= kZones; ++z) {
    if (!chosen(zones_.ZoneChan[z])) continue;
    lamps_.alerted(z);
    link_.SendZoneSet(sources_.ch_computer, sources_.vol_computer, z);
    link_.SendZoneSet(sources_.ch_computer, sources_.vol_computer, z);
  }
}

bool ZoneConsole::computer_ready() {
  if (Val(settings_.SettingsLine[kBlockSource]) == 0)
    boxes_.message("В настройках оповещения не выбран компьютер");
  else if (sources_.ch_computer == 0)
    boxes_.message("В настройках оборудования не выбран компьютер");
  else if (sources_.vol_computer == 0)
    boxes_.message(join("Уровень звука в ", int{sources_.ch_computer}, " канале =0"));
  else
    return true;
  return false;
}

}  // namespace evac
