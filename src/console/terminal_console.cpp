#include "console/terminal_console.h"

#include "console/channel_colors.h"
#include "model/text.h"

namespace evac {

void TerminalConsole::start() {
  tab_.Option3.set_value(true);
}

void TerminalConsole::pick(int t) {
  if (terminals_.TermSel[t]) {
    tab_.CmdAT[t].set_back_color(kMainBackground);
    terminals_.TermSel[t] = false;
    --terminals_.selected_count;
    return;
  }
  if (tab_.Option1.value()) {
    const int channel = terminals_.TermChan[t];
    // A channel of a damaged file that is none of ours is no channel either.
    if (!is_channel(channel)) {
      boxes_.message("Данному терминалу не назначен звуковой канал");
      return;
    }
    // Pressed even when it is chosen already: the colour picked last may be another row's by now.
    tab_.Opt[channel].press();
  } else if (terminals_.sel_channel == 0) {
    boxes_.message("Выберите номер звукового канала");
    return;
  }
  tab_.CmdAT[t].set_back_color(paint_.ColorChannel);
  terminals_.TermSel[t] = true;
  ++terminals_.selected_count;
}

void TerminalConsole::choose_channel(int c) {
  terminals_.sel_channel = static_cast<std::int16_t>(c);
  pick_channel_color(paint_, c);
}

void TerminalConsole::follow_volume(int c) {
  tab_.LblZ[c].set_caption(std::to_string(tab_.VS_Z[c].value()));
}

void TerminalConsole::pick_preset() {
  terminals_.TermSel.fill(false);
  terminals_.selected_count = 0;
  for (int t = 1; t <= kTerminals; ++t)
    if (is_channel(terminals_.TermChan[t])) tab_.CmdAT[t].click();
}

void TerminalConsole::choose_preset() {
  tab_.LblUs.set_caption(std::to_string(tab_.VsUs.value()));
  PresetLoad(tab_.VsUs.value());
}

void TerminalConsole::PresetLoad(int n) {
  for (auto& button : tab_.CmdAT) button.set_back_color(kMainBackground);
  terminals_.TermSel.fill(false);
  terminals_.TermChan.fill(0);
  terminals_.term_file_no = static_cast<std::int16_t>(n);
  settings_.LoadTermSettings(n);
  settings_.ShowTermChannels();
  tab_.Option3.set_value(true);
}

void TerminalConsole::send() {
  if (terminals_.sel_channel == 0) {
    boxes_.message("Выберите номер звукового канала");
    return;
  }
  if (terminals_.selected_count == 0) {
    boxes_.message("Выберите терминал");
    return;
  }
  if (tab_.LblZ[terminals_.sel_channel].caption().empty()) {
    boxes_.message("Уровень звука в выбранном канале = 0");
    return;
  }
  if (terminals_.selected_count < 1) return;
  // In manual routing a terminal's channel is the one whose colour its button has; a button of another colour
  // goes out with the channel of the terminal before it, the first one with none.
  int carried = 0;
  for (int t = 1; t <= kTerminals; ++t) {
    if (!terminals_.TermSel[t]) continue;
    if (tab_.Option1.value()) {
      if (is_channel(terminals_.TermChan[t])) send_terminal(terminals_.TermChan[t], t);
      continue;
    }
    for (int c = 1; c <= kChannels; ++c)
      if (tab_.CmdAT[t].back_color() == tab_.L1[c].back_color()) carried = c;
    send_terminal(carried, t);
  }
}

void TerminalConsole::send_terminal(int channel, int t) {
  const int volume = Number(tab_.LblZ[channel].caption());
  link_.SendTermSet(channel, volume, t);
  link_.SendTermSet(channel, volume, t);
}

}  // namespace evac
