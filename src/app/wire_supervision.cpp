// The wing of supervision: the scan, automatic control, the clock and its fellow timers.
#include "app/console.h"

namespace evac {

void Console::wire_supervision() {
  Form1& form1 = forms_.form1;
  machine_.loop.between_events = [this] { terminal_scan_.go_on(); };
  form1.CmdSkan.click = [this] { terminal_scan_.toggle(); };
  form1.Cd1.on_click([this](int i) { terminal_scan_.sort_by(i); });
  form1.CmdSch.click = [this] { zone_readback_.read(); };

  form1.CmdZ.click = [this] { auto_control_.toggle_monitor(); };
  form1.CmdArm.click = [this] { auto_control_.toggle_manual(); };
  form1.CmdSb.click = [this] { auto_control_.reset(); };
  form1.CmdSb.mouse_down = [this](MousePress press) {
    if (press.button == 1) auto_control_.show_reset_pressed(true);
  };
  form1.CmdSb.mouse_up = [this] { auto_control_.show_reset_pressed(false); };
  form1.Timer8.tick = [this] { auto_control_.tick(); };
  form1.Timer9.tick = [this] { auto_control_.alarm_tick(); };

  form1.Timer2.tick = [this] { text_log_.tick(); };
  form1.Command1.click = [this] { text_log_.clear(); };
  form1.Timer3.tick = [this] { clock_.tick(); };
  form1.Timer14.tick = [this] { status_file_.tick(); };
}

}  // namespace evac
