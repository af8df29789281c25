#include "supervision/auto_control.h"

#include "model/text.h"
#include "platform/switch_look.h"
#include "store/alert_store.h"

namespace evac {

int AutoControl::setting(SettingsIndex index) const {
  return Number(doors_.settings.SettingsLine[index]);
}

void AutoControl::start() {
  doors_.supervision.auto_mode = setting(kAutoControl) != 0;
  show_mode();
  show_switch(doors_.panel.CmdArm, false);
  show_reset_pressed(false);
  set_next_check();
}

void AutoControl::show_mode() {
  show_switch(doors_.panel.CmdZ, doors_.supervision.auto_mode);
}

void AutoControl::set_next_check() {
  doors_.supervision.NextCheck =
      later_in_day(second_of_day(doors_.loop.wall()), scan_period(doors_.settings));
}

void AutoControl::toggle_monitor() {
  bool& on = doors_.supervision.auto_mode;
  on = !on;
  show_mode();
  if (on) {
    set_next_check();
    doors_.panel.Lbl_m.set_caption("Монитор включен");
    if (doors_.supervision.ManualMode) doors_.panel.CmdArm.click();
  } else {
    doors_.panel.PctM.set_picture(picture::kNo);
    doors_.panel.Label3.set_caption("");
    doors_.panel.Timer9.set_enabled(false);
    doors_.panel.Lbl_m.set_caption("Монитор выключен");
  }
}

void AutoControl::toggle_manual() {
  bool& on = doors_.supervision.ManualMode;
  on = !on;
  show_switch(doors_.panel.CmdArm, on);
  if (!on) {
    doors_.panel.Timer9.set_enabled(false);
    return;
  }
  if (setting(kAutoControl) == 1 && doors_.supervision.auto_mode) doors_.panel.CmdZ.click();
  scan_and_report([this] {
    doors_.panel.Label3.set_caption("Ручной контроль");
    doors_.panel.Lbl_m.set_caption("Все в порядке");
  });
}

void AutoControl::scan_and_report(std::function<void()> then) {
  doors_.panel.Lbl_m.set_caption("Опрос терминалов");
  doors_.scan_panel.CmdSkan.click();
  doors_.scan.when_over([this, then = std::move(then)] {
    doors_.report.tell();
    then();
  });
}

void AutoControl::tick() {
  if (!doors_.supervision.auto_mode) return;
  doors_.panel.PctM.set_picture(picture::kYes);
  doors_.panel.Label3.set_caption("Автоматический контроль");
  const int next = doors_.supervision.NextCheck;
  const int left = next - second_of_day(doors_.loop.wall());
  doors_.panel.Lbl_m.set_caption(setting(kAutoControl) == 0
                                     ? "Автоматический контроль отключен"
                                     : join(time_text(next), "  ", time_left_text(left)));
  if (left != 0) return;
  scan_and_report([this] { set_next_check(); });
}

void AutoControl::alarm_tick() {
  if (!doors_.supervision.auto_mode) return;
  doors_.panel.PctM.set_picture(picture::kPause);
  BeepPhase = !BeepPhase;
  if (!BeepPhase) warn(doors_.tone, doors_.settings);
}

void AutoControl::reset() {
  doors_.panel.List4.clear();
  doors_.panel.List5.clear();
  doors_.panel.Timer9.set_enabled(false);
  doors_.panel.PctM.set_picture(picture::kNo);
  doors_.panel.Label3.set_caption("");
  doors_.supervision.TermMissCount.fill(0);
}

void AutoControl::show_reset_pressed(bool pressed) {
  doors_.panel.CmdSb.set_picture(pressed ? picture::kSwitchOn : picture::kSwitchOff);
}

}  // namespace evac
