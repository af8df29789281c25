// The wing of the weekly timer: its panel, the editor of the programmes, the schedule.
#include "app/console.h"
#include "app/wiring.h"

namespace evac {

void Console::wire_timer() {
  Form1& form1 = forms_.form1;
  form1.CmdTV.click = [this] { timer_.engine.toggle(); };
  form1.Timer10.tick = [this] { timer_.engine.tick(); };
  form1.Timer11.tick = [this] { timer_.message.tick(); };
  form1.M_tim.click = [this] { open_settings([this] { timer_.editor.open(); }); };
  clock_.day_changed = [this] { timer_.programmes.new_day(); };

  Form3& form3 = forms_.form3;
  show_value(form3.VSH, form3.LblH);
  show_value(form3.VSM, form3.LblM);
  show_value(form3.VSS, form3.LblS);
  show_value(form3.VsUs, form3.LblUs);
  show_value(form3.VsTu, form3.LblTu);
  form3.VsFr.change = [this] { timer_.editor.from_changed(); };
  form3.VsTo.change = [this] { timer_.editor.to_changed(); };
  for (int kind = 0; OptionButton * option : form3.kinds)
    option->click = [this, number = ++kind] { timer_.editor.kind_chosen(number); };
  form3.CmbF1.click = [this] { timer_.editor.message_chosen(); };
  form3.CmdW.on_click([this](int n) { timer_.editor.toggle_day(n); });
  form3.CmdAdd.click = [this] { timer_.editor.add_row(); };
  form3.CmdDel.click = [this] { timer_.editor.delete_row(); };
  form3.Lst1.click = [this] { timer_.editor.row_chosen(); };
  form3.CmdSas.click = [this] { timer_.editor.add_programme(); };
  form3.CmdSave.click = [this] { timer_.editor.save(); };
  form3.CmbLstProg.click = [this] { timer_.editor.programme_chosen(); };
  form3.CmdS.click = [this] { timer_.preview.play(); };
  form3.CmdSt.click = [this] { timer_.preview.stop(); };
  form3.CmdR.click = [this] { timer_.schedule.open(); };
  form3.Command2.click = [this] { windows_.hide(forms_.form3); };

  FrmTm& frm_tm = forms_.frm_tm;
  frm_tm.CmdAdd.click = [this] { timer_.schedule.choose(); };
  frm_tm.Command3.click = [this] { timer_.schedule.remove_entry(); };
  frm_tm.Command2.click = [this] { timer_.schedule.save(); };
  frm_tm.Command1.click = [this] { windows_.hide(forms_.frm_tm); };

  Frm8& frm8 = forms_.frm8;
  frm8.Lst1.click = [this] { timer_.schedule.programme_chosen(); };
  frm8.MonthView1.change = [this] { timer_.schedule.range_chosen(); };
  frm8.Command1.click = [this] { timer_.schedule.add_entry(); };
  frm8.Command2.click = [this] { windows_.hide(forms_.frm8); };
}

}  // namespace evac
