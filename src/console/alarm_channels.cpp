#include "console/alarm_channels.h"

#include "model/text.h"

namespace evac {

void AlarmChannels::toggle_both() {
  const bool on = !doors_.power.alarm9_on;
  if (!agreed(on, "аварийные каналы 9 и 10")) return;
  doors_.power.alarm9_on = on;
  paint(doors_.tab.CmdTW9, on);
  paint(doors_.tab.CmdTW10, on);
  doors_.link.SendAlarm9(on);
}

void AlarmChannels::toggle_10() {
  const bool on = !doors_.power.alarm10_on;
  if (!agreed(on, "аварийный канал 10")) return;
  doors_.power.alarm10_on = on;
  paint(doors_.tab.CmdTW10, on);
  doors_.link.SendAlarm10(on);
}

bool AlarmChannels::agreed(bool on, std::string_view channels) {
  return on ? doors_.boxes.ask(join("Включить ", channels), "Power ON")
            : doors_.boxes.ask(join("Действительно выключить ", channels), "Power OFF");
}

void AlarmChannels::paint(Button& button, bool on) {
  button.set_back_color(on ? Color::kOn : doors_.paint.ColorButtonFace);
}

}  // namespace evac
