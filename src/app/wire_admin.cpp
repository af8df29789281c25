// The wing of administration: the password before the settings, the scheduled restart, the engineer's window.
#include "app/console.h"

namespace evac {

void Console::open_settings(const std::function<void()>& open) {
  if (password_gate_.ask()) open();
}

void Console::wire_admin() {
  Form1& form1 = forms_.form1;
  form1.MusPar.click = [this] { password_change_.open(); };
  form1.M_perez.click = [this] { restart_times_.open(); };
  // Out of the operator's way.
  form1.LblDate.mouse_down = [this](MousePress press) {
    if (press.button == 2 && press.shift) service_window_.open();
  };

  FrmPsW& gate = forms_.frm_psw;
  gate.Txt1.change = [this] { password_gate_.wake(); };
  gate.CmdVPsW.click = [this] { password_gate_.apply(); };
  gate.Cmd2.click = [this] { password_gate_.cancel(); };

  FrmPwR& change = forms_.frm_pwr;
  for (TextBox* box : change.boxes()) box->change = [this] { password_change_.wake(); };
  change.Cmd1.click = [this] { password_change_.apply(); };
  change.Cmd2.click = [this] { password_change_.leave(); };

  FrmRez& restart = forms_.frm_rez;
  restart.Timer1.tick = [this] { restart_times_.show_slots(); };
  restart.Chk1.on_click([this](int n) { restart_times_.toggle(n); });
  for (int n = 1; n <= kRestartSlots; ++n)
    restart.TxtTper[n].key_press = [this, n](std::string& key) { restart_times_.filter(n, key); };
  restart.CmdPrim.click = [this] { restart_times_.apply(); };
  restart.CmdClose.click = [this] { restart_times_.leave(); };
  clock_.restart_test = [this] { restart_times_.test(); };

  FrmISxodniki& service = forms_.frm_isxodniki;
  service.Command1.click = [this] { service_window_.write_text(); };
  service.Command2.click = [this] { service_window_.read_text(); };
  service.Command3.click = [this] { service_window_.send_zone(); };
  service.Command4.click = [this] { service_window_.send_terminal(); };
  service.Command5.click = [this] { service_window_.paint(); };
  service.Command6.click = [this] { service_window_.ask(); };
}

}  // namespace evac
