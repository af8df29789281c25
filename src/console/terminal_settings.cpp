#include "console/terminal_settings.h"

#include "console/channel_colors.h"
#include "platform/windows.h"
#include "store/settings_files.h"

namespace evac {

TerminalSettings::TerminalSettings(const Doors& doors)
    : CellSettings({doors.form,
                    {doors.terminals.TermChan},
                    {doors.terminals.TermChanSet},
                    doors.tab.CmdAT,
                    nullptr,
                    true},
                   doors.paint, doors.folder),
      doors_(doors) {}

void TerminalSettings::LoadTermSettings(int n) {
  // A preset without a file has no terminal on; a file puts on what it has.
  for (int t = 1; t <= count(); ++t)
    if (is_on(t)) show_off(t);
  doors_.terminals.term_count = static_cast<std::int16_t>(load(preset_file(n)));
}

void TerminalSettings::ShowTermChannels() {
  for (int t = 1; t <= count(); ++t) {
    doors_.terminals.TermChanSet[t] = kSwitchedOff;
    if (doors_.terminals.TermChan[t] > 0)
      take_channel(t, doors_.terminals.TermChan[t]);
    else
      cell(t).set_back_color(is_on(t) ? Color::kGrey : Color::kWindow);
  }
}

void TerminalSettings::open() {
  doors_.names.load();
  doors_.equipment.load(EquipmentSettings::Reading::kByWindow);
  paint_legend(doors_.form.L1);
  LoadTermSettings(doors_.terminals.term_file_no);
  ShowTermChannels();
  doors_.form.VsUs.set_value(doors_.terminals.term_file_no);
  doors_.form.LblUs.set_caption(std::to_string(doors_.terminals.term_file_no));
  doors_.form.windows().show_modal(doors_.form);
}

void TerminalSettings::save() {
  doors_.terminals.term_count =
      static_cast<std::int16_t>(CellSettings::save(preset_file(doors_.terminals.term_file_no)));
}

void TerminalSettings::choose_preset() {
  const int preset = doors_.form.VsUs.value();
  doors_.terminals.TermChan.fill(0);
  doors_.terminals.term_file_no = static_cast<std::int16_t>(preset);
  doors_.tab.VsUs.set_value(preset);
  doors_.form.LblUs.set_caption(std::to_string(preset));
  LoadTermSettings(preset);
  ShowTermChannels();
}

}  // namespace evac
