// The line and the menu.
#include "app/console.h"

namespace evac {

void Console::wire_link() {
  machine_.port.receive = [this] { link_.receive(); };
  link_.frame_received = [this] { dispatcher_.dispatch(); };
  reply_wait_.answer = [this] { dispatcher_.answer_poll(); };
  forms_.form1.Timer1.tick = [this] { reply_wait_.tick(); };
  forms_.form1.Timer1.rests = [this] { return reply_wait_.rests(); };
}

void Console::wire_menu() {
  Form1& form1 = forms_.form1;
  form1.M_n_o.click = [this] { open_settings([this] { equipment_.open(); }); };
  form1.M_n_op.click = [this] { open_settings([this] { alert_settings_.open(); }); };
  form1.M_n_z.click = [this] { open_settings([this] { zone_settings_.open(); }); };
  form1.M_n_t.click = [this] { open_settings([this] { terminal_settings_.open(); }); };
  form1.M_ex.click = [this] { shutdown(); };
  form1.query_unload = [this] { shutdown(); };
  form1.M_op.click = [this] { machine_.boxes.message("Описание содерфится в файле: ZEF-Soft.pdf", "Info"); };
  form1.M_o_p.click = [this] { windows_.show_modal(forms_.form2); };
}

}  // namespace evac
