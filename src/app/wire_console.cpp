// The wing of zones, terminals, channels and their settings.
#include "app/console.h"
#include "app/wiring.h"

namespace evac {

void Console::wire_console() {
  Form1& form1 = forms_.form1;
  form1.CmdAZ.on_click([this](int z) { zone_console_.toggle(z); });
  form1.CmdCh.on_click([this](int z) { zone_console_.next_channel(z); });
  form1.CmdVol.on_click([this](int z) { zone_console_.next_volume(z); });
  for (int z = 1; z <= kZones; ++z) {
    form1.CmdCh[z].mouse_down = [this, z](MousePress press) { zone_console_.previous_channel(z, press); };
    form1.CmdVol[z].mouse_down = [this, z](MousePress press) { zone_console_.previous_volume(z, press); };
  }
  form1.CmdAllZ.click = [this] { zone_console_.send_all(); };
  form1.CmdGr2.click = [this] { zone_console_.take_volumes(forms_.form1.TerminalsTab::LblZ); };
  form1.CmdGrK.click = [this] { zone_console_.take_volumes(forms_.form22.LblZ); };

  form1.CmdAT.on_click([this](int t) { terminal_console_.pick(t); });
  form1.Opt.on_click([this](int c) { terminal_console_.choose_channel(c); });
  for (int c = 0; c <= kChannels; ++c) show_value(form1.VS_Z[c], form1.TerminalsTab::LblZ[c]);
  form1.Option1.click = [this] { terminal_console_.pick_preset(); };
  form1.VsUs.change = [this] { terminal_console_.choose_preset(); };
  form1.CmdU.click = [this] { terminal_console_.send(); };
}

void Console::wire_console_settings() {
  for (int i = 0; i < kSourceRows; ++i) {
    show_value(forms_.form22.VS_Z[i], forms_.form22.LblZ[i]);
    show_value(forms_.form22.VS_N[i], forms_.form22.LblN[i]);
  }
  forms_.form22.Command1.click = [this] { equipment_.save(); };
  forms_.form22.Command2.click = [this] { windows_.hide(forms_.form22); };

  const auto wire_window = [](CellWindow& window, auto& settings) {
    for (int i = 1; i <= window.Lbl.last(); ++i) {
      window.Lbl[i].double_click = [&settings, i] { settings.toggle(i); };
      window.Lbl[i].mouse_down = [&settings, i](MousePress press) { settings.press(i, press); };
    }
    window.ch.on_click([&settings](int c) { settings.choose_channel(c); });
    window.Command1.click = [&settings] { settings.save(); };
    window.Command3.click = [&settings] { settings.leave(); };
    window.query_unload = [&settings] { settings.leave(); };
  };
  wire_window(forms_.form33, zone_settings_);
  wire_window(forms_.form55, terminal_settings_);
  forms_.form55.VsUs.change = [this] { terminal_settings_.choose_preset(); };

  const auto wire_names = [](Button& opener, NameWindow& window, NameList& names) {
    opener.click = [&names] { names.open(); };
    show_value(window.VS1, window.LblZ);
    window.CmdAdd.click = [&names] { names.add(); };
    window.CmdDel.click = [&names] { names.remove(); };
    window.List1.double_click = [&names] { names.remove(); };
    window.CmdSave.click = [&names] { names.save(); };
  };
  wire_names(forms_.form33.Command2, forms_.form6, zone_names_);
  wire_names(forms_.form55.Command2, forms_.form4, terminal_names_);
}

}  // namespace evac
