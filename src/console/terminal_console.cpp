#include "console/terminal_console.h"

#include "console/channel_colors.h"
#include "model/text.h"

namespace evac {

void TerminalConsole::start() {
  doors_.tab.Option3.set_value(true);
}

void TerminalConsole::pick(int t) {
  if (doors_.terminals.TermSel[t]) {
    doors_.tab.CmdAT[t].set_back_color(kMainBackground);
    doors_.terminals.TermSel[t] = false;
    --doors_.terminals.selected_count;
    return;
  }
  if (doors_.tab.Option1.value()) {
    const int channel = doors_.terminals.TermChan[t];
    // A channel of a damaged file that is none of ours is no channel either.
    if (!is_channel(channel)) {
      doors_.boxes.message("Данному терминалу не назначен звуковой канал");
      return;
    }
    // Pressed even when it is chosen already: the colour picked last may be another row's by now.
    doors_.tab.Opt[channel].press();
  } else if (doors_.terminals.sel_channel == 0) {
    doors_.boxes.message("Выберите номер звукового канала");
    return;
  }
  doors_.tab.CmdAT[t].set_back_color(doors_.paint.ColorChannel);
  doors_.terminals.TermSel[t] = true;
  ++doors_.terminals.selected_count;
}

void TerminalConsole::choose_channel(int c) {
  doors_.terminals.sel_channel = static_cast<std::int16_t>(c);
  pick_channel_color(doors_.paint, c);
}

void TerminalConsole::pick_preset() {
  doors_.terminals.TermSel.fill(false);
  doors_.terminals.selected_count = 0;
  for (int t = 1; t <= kTerminals; ++t)
    if (is_channel(doors_.terminals.TermChan[t])) doors_.tab.CmdAT[t].click();
}

void TerminalConsole::choose_preset() {
  doors_.tab.LblUs.set_caption(std::to_string(doors_.tab.VsUs.value()));
  PresetLoad(doors_.tab.VsUs.value());
}

void TerminalConsole::PresetLoad(int n) {
  for (auto& button : doors_.tab.CmdAT) button.set_back_color(kMainBackground);
  doors_.terminals.TermSel.fill(false);
  doors_.terminals.TermChan.fill(0);
  doors_.terminals.term_file_no = static_cast<std::int16_t>(n);
  doors_.settings.LoadTermSettings(n);
  doors_.settings.ShowTermChannels();
  doors_.tab.Option3.set_value(true);
}

void TerminalConsole::send() {
  if (doors_.terminals.sel_channel == 0) {
    doors_.boxes.message("Выберите номер звукового канала");
    return;
  }
  if (doors_.terminals.selected_count == 0) {
    doors_.boxes.message("Выберите терминал");
    return;
  }
  if (doors_.tab.LblZ[doors_.terminals.sel_channel].caption().empty()) {
    doors_.boxes.message("Уровень звука в выбранном канале = 0");
    return;
  }
  if (doors_.terminals.selected_count < 1) return;
  // In manual routing a terminal's channel is the one whose colour its button has; a button of another colour
  // goes out with the channel of the terminal before it, the first one with none.
  int carried = 0;
  for (int t = 1; t <= kTerminals; ++t) {
    if (!doors_.terminals.TermSel[t]) continue;
    if (doors_.tab.Option1.value()) {
      if (is_channel(doors_.terminals.TermChan[t])) send_terminal(doors_.terminals.TermChan[t], t);
      continue;
    }
    for (int c = 1; c <= kChannels; ++c)
      if (doors_.tab.CmdAT[t].back_color() == doors_.tab.L1[c].back_color()) carried = c;
    send_terminal(carried, t);
  }
}

void TerminalConsole::send_terminal(int channel, int t) {
  const int volume = Number(doors_.tab.LblZ[channel].caption());
  doors_.link.SendTermSet(channel, volume, t);
  doors_.link.SendTermSet(channel, volume, t);
}

}  // namespace evac
