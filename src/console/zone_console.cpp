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
  for (auto& button : doors_.tab.CmdCh) SetChannelColor(doors_.paint, button, shown(button));
}

void ZoneConsole::InitZoneRows() {
  for (int z = 1; z <= kZones; ++z) {
    doors_.tab.CmdVol[z].set_caption(std::to_string(kFirstVolume));
    doors_.tab.CmdCh[z].set_caption("1");
    doors_.tab.CmdAZ[z].set_caption(std::to_string(z));
    doors_.tab.CmdAZ[z].set_tool_tip(kSwitchTip);
    doors_.tab.CmdCh[z].set_tool_tip(kStepTip);
    doors_.tab.CmdVol[z].set_tool_tip(kStepTip);
  }
}

void ZoneConsole::toggle(int z) {
  doors_.zones.ZoneOn[z] = !doors_.zones.ZoneOn[z];
  if (!doors_.zones.ZoneOn[z]) {
    doors_.tab.CmdAZ[z].set_back_color(kMainBackground);
    return;
  }
  doors_.tab.CmdAZ[z].set_back_color(doors_.tab.CmdCh[z].back_color());
  doors_.link.SendZoneSet(shown(doors_.tab.CmdCh[z]), shown(doors_.tab.CmdVol[z]), z);
}

void ZoneConsole::next_channel(int z) {
  step_up(doors_.tab.CmdCh[z], kChannels);
  SetChannelColor(doors_.paint, doors_.tab.CmdCh[z], shown(doors_.tab.CmdCh[z]));
}

void ZoneConsole::previous_channel(int z, const MousePress& press) {
  if (!press.plain_right()) return;
  step_down(doors_.tab.CmdCh[z], kChannels);
  SetChannelColor(doors_.paint, doors_.tab.CmdCh[z], shown(doors_.tab.CmdCh[z]));
}

void ZoneConsole::next_volume(int z) {
  step_up(doors_.tab.CmdVol[z], kMostVolume);
}

void ZoneConsole::previous_volume(int z, const MousePress& press) {
  if (press.plain_right()) step_down(doors_.tab.CmdVol[z], kMostVolume);
}

void ZoneConsole::send_all() {
  for (int z = 1; z <= kZones; ++z) {
    doors_.tab.CmdCh[z].set_back_color(kMainBackground);
    const int channel = doors_.zones.ZoneChan[z];
    if (channel < 1 && doors_.zones.ZoneVolScan[z] < 1) continue;
    // A channel of a damaged file has no slider to take a volume from.
    if (channel < doors_.volumes.first() || channel > doors_.volumes.last()) continue;
    doors_.tab.CmdVol[z].set_caption(doors_.volumes[channel].caption());
    show_channel(z, channel);
    doors_.link.SendZoneSet(channel, shown(doors_.volumes[channel]), z);
  }
}

void ZoneConsole::show_channel(int z, int channel) {
  doors_.tab.CmdCh[z].set_caption(std::to_string(channel));
  SetChannelColor(doors_.paint, doors_.tab.CmdCh[z], channel);
  SetChannelColor(doors_.paint, doors_.tab.CmdAZ[z], channel);
}

void ZoneConsole::take_volumes(const ControlArray<Label>& volumes) {
  for (int z = 1; z <= kZones; ++z) {
    const int channel = shown(doors_.tab.CmdCh[z]);
    if (channel < volumes.first() || channel > volumes.last()) continue;
    doors_.tab.CmdVol[z].set_caption(volumes[channel].caption());
    SetChannelColor(doors_.paint, doors_.tab.CmdCh[z], channel);
  }
}

}  // namespace evac
