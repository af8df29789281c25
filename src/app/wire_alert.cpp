// The wing of alerting and its settings.
#include "app/console.h"
#include "app/wiring.h"

namespace evac {

void Console::wire_alert() {
  Form1& form1 = forms_.form1;
  form1.Timer4.tick = [this] {
    watch_.look();
    alert_engine_.tick();
    watch_.look();
  };
  form1.Timer5.tick = [this] { block_alert_.tick(); };
  form1.Timer6.tick = [this] { manual_alert_.tick(); };
  form1.Timer7.tick = [this] { algorithm_run_.tick(); };

  form1.CmdAl.click = [this] { manual_alert_.start_message(); };
  form1.CmdCan.click = [this] { manual_alert_.cancel_message(); };
  form1.CmdDem.click = [this] { manual_alert_.start_algorithm(); };
  form1.CmdStF.click = [this] { manual_alert_.stop_detection(); };
  form1.CmdAlAl.click = [this] { manual_alert_.alert_all_zones(); };
  form1.VS1.change = [this] { manual_alert_.plays_changed(); };
  form1.VSFD.change = [this] { manual_alert_.test_zone_changed(); };
  show_value(form1.VSRT1, form1.LblU1);
  show_value(form1.VSRT2, form1.LblU2);
  show_value(form1.VSRT3, form1.LblU3);
  form1.CmbF.click = [this, &form1] { message_lists_.show_length(form1.CmbF.text(), form1.AlarmTab::LblL); };
  form1.CmdAG.click = [this] { zone_groups_.toggle_all(); };
  form1.CmdTG.click = [this] { zone_groups_.toggle_chosen(); };
}

void Console::wire_alert_settings() {
  Form5& form5 = forms_.form5;
  Form7& form7 = forms_.form7;
  form5.Opt1.on_click([this](int i) { alert_settings_.type_chosen(i); });
  form5.Opt2.on_click([this](int i) { alert_settings_.source_chosen(i); });
  form5.ChkM.click = [this] { alert_settings_.scan_clicked(); };
  form5.VsFr.change = [this] { alert_settings_.from_changed(); };
  form5.VsTo.change = [this] { alert_settings_.to_changed(); };
  form5.CmdSave.click = [this] { alert_settings_.save(); };
  form5.Command2.click = [this] { windows_.hide(forms_.form5); };

  show_value(form5.VS1, form5.LblKl);
  show_value(form5.VS2, form5.Lblkl2);
  show_value(form5.VS3, form5.LblKl3);
  show_value(form5.VsPo, form5.LblPo);
  show_value(form5.VSRT1, form5.LblU1);
  show_value(form5.VSRT2, form5.LblU2);
  show_value(form5.VSRT3, form5.LblU3);
  show_value(form5.VSH, form5.LblH);
  show_value(form5.VSM, form5.LblM);
  show_value(form5.VSkS, form5.LblKs);

  ComboBox* const choices[] = {&form5.CmbF1, &form5.CmbF2, &form5.CmbF3};
  Button* const sounds[] = {&form5.CmdSound1, &form5.CmdSound2, &form5.CmdSound3};
  Button* const stops[] = {&form5.CmdStop1, &form5.CmdStop2, &form5.CmdStop3};
  for (int n = 1; n <= 3; ++n) {
    choices[n - 1]->click = [this, n] { message_preview_.chosen(n); };
    sounds[n - 1]->click = [this, n] { message_preview_.play(n); };
    stops[n - 1]->click = [this, n] { message_preview_.stop(n); };
  }

  form5.VSNA.change = [this] { algorithm_editor_.algorithm_changed(); };
  form5.CmdAdd.click = [this] { algorithm_editor_.add_step(); };
  form5.CmdDel.click = [this] { algorithm_editor_.delete_step(); };
  form5.CmdZ.click = [this] { algorithm_editor_.choose_zones(); };
  form5.CmdPF.click = [this] { algorithm_editor_.print(); };
  for (auto& list : form5.Lst1) list.double_click = [this] { algorithm_editor_.delete_step(); };

  form7.Chk.on_click([this](int) { zone_choice_.zone_clicked(); });
  form7.ChkAll.click = [this] { zone_choice_.all_clicked(); };
  form7.CmdSave.click = [this] { zone_choice_.save(); };
  form7.Command2.click = [this] { windows_.hide(forms_.form7); };
}

}  // namespace evac
