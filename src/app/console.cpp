#include "app/console.h"

namespace evac {

Console::Console(const Machine& machine)
    : machine_(machine),
      windows_(machine.loop, machine.windows),
      form1_(windows_, machine.files),
      form2_(windows_),
      form22_(windows_),
      form33_(windows_),
      form55_(windows_),
      form6_(windows_),
      form4_(windows_),
      journal_(model_.calendar, model_.settings, machine.loop, machine.files),
      link_(model_.link, machine.port),
      dispatcher_(model_.link, link_, machine.loop, form1_, form1_),
      clock_line_(model_.calendar, form1_, machine.loop),
      audio_matrix_(model_.sources, form1_, link_),
      equipment_(model_.sources, model_.power, model_.settings, machine.files, machine.port, form22_, form1_,
                 form1_, form33_, form55_),
      channel_menu_(form1_),
      zone_settings_(model_.zones, model_.settings, model_.paint, machine.files, channel_menu_, form33_,
                     form1_),
      terminal_settings_(model_.terminals, model_.settings, model_.paint, machine.files, channel_menu_,
                         form55_, form1_),
      zone_names_(model_.settings, machine.files, machine.boxes, form6_, zone_names_file, nullptr),
      terminal_names_(model_.settings, machine.files, machine.boxes, form4_, terminal_names_file,
                      &form1_.CmdAT),
      zone_console_(model_.zones, model_.sources, model_.settings, model_.paint, form1_, form1_,
                    form1_.TerminalsTab::LblZ, form1_, link_, machine.boxes),
      terminal_console_(model_.terminals, model_.paint, form1_, terminal_settings_, link_, machine.boxes),
      alert_store_(model_.settings, machine.files, machine.boxes) {
  wire();
  wire_equipment();
  wire_cells();
  wire_zones();
  wire_terminals();
  wire_menu();
}

Console::~Console() {
  machine_.port.receive = nullptr;
}

void Console::wire() {
  // Link.
  machine_.port.receive = [this] { link_.receive(); };
  link_.frame_received = [this] { dispatcher_.dispatch(); };
  form1_.Timer1.tick = [this] { dispatcher_.tick(); };

  // Clock.
  form1_.Timer3.tick = [this] { clock_line_.tick(); };

  // Audio matrix.
  form1_.SourcesTab::Opt1.on_click([this](int k) { audio_matrix_.choose(k); });
}

void Console::wire_equipment() {
  for (int i = 0; i < kSourceRows; ++i) {
    form22_.VS_Z[i].change = [this, i] {
      form22_.LblZ[i].set_caption(std::to_string(form22_.VS_Z[i].value()));
    };
    form22_.VS_N[i].change = [this, i] {
      form22_.LblN[i].set_caption(std::to_string(form22_.VS_N[i].value()));
    };
  }
  form22_.Command1.click = [this] { equipment_.save(); };
  form22_.Command2.click = [this] { windows_.hide(form22_); };
}

void Console::wire_cells() {
  const auto wire_window = [](CellWindow& window, auto& settings) {
    for (int i = 1; i <= window.Lbl.last(); ++i) {
      window.Lbl[i].double_click = [&settings, i] { settings.toggle(i); };
      window.Lbl[i].mouse_down = [&settings, i](MousePress press) { settings.press(i, press); };
    }
    window.Command1.click = [&settings] { settings.save(); };
    window.Command3.click = [&settings] { settings.leave(); };
    window.query_unload = [&settings] { settings.leave(); };
  };
  wire_window(form33_, zone_settings_);
  wire_window(form55_, terminal_settings_);
  form55_.VsUs.change = [this] { terminal_settings_.choose_preset(); };
  form1_.ch.on_click([this](int c) { channel_menu_.choose(c); });

  const auto wire_names = [this](Button& opener, NameWindow& window, NameList& names) {
    opener.click = [this, &window, &names] {
      names.load();
      windows_.show_modal(window);
    };
    window.VS1.change = [&window] { window.LblZ.set_caption(std::to_string(window.VS1.value())); };
    window.CmdAdd.click = [&names] { names.add(); };
    window.CmdDel.click = [&names] { names.remove(); };
    window.List1.double_click = [&names] { names.remove(); };
    window.CmdSave.click = [&names] { names.save(); };
  };
  wire_names(form33_.Command2, form6_, zone_names_);
  wire_names(form55_.Command2, form4_, terminal_names_);
}

void Console::wire_zones() {
  form1_.CmdAZ.on_click([this](int z) { zone_console_.toggle(z); });
  form1_.CmdCh.on_click([this](int z) { zone_console_.next_channel(z); });
  form1_.CmdVol.on_click([this](int z) { zone_console_.next_volume(z); });
  for (int z = 1; z <= kZones; ++z) {
    form1_.CmdCh[z].mouse_down = [this, z](MousePress press) { zone_console_.previous_channel(z, press); };
    form1_.CmdVol[z].mouse_down = [this, z](MousePress press) { zone_console_.previous_volume(z, press); };
  }
  form1_.CmdAllZ.click = [this] { zone_console_.send_all(); };
  form1_.CmdGr2.click = [this] { zone_console_.take_volumes(form1_.TerminalsTab::LblZ); };
  form1_.CmdGrK.click = [this] { zone_console_.take_volumes(form22_.LblZ); };
  form1_.CmdAG.click = [this] { zone_console_.toggle_all(); };
  form1_.CmdTG.click = [this] { zone_console_.toggle_chosen(); };
}

void Console::wire_terminals() {
  form1_.CmdAT.on_click([this](int t) { terminal_console_.pick(t); });
  form1_.Opt.on_click([this](int c) { terminal_console_.choose_channel(c); });
  for (int c = 0; c <= kChannels; ++c)
    form1_.VS_Z[c].change = [this, c] { terminal_console_.follow_volume(c); };
  form1_.Option1.click = [this] { terminal_console_.pick_preset(); };
  form1_.VsUs.change = [this] { terminal_console_.choose_preset(); };
  form1_.CmdU.click = [this] { terminal_console_.send(); };
}

void Console::wire_menu() {
  form1_.M_n_o.click = [this] { open_settings(&Console::open_equipment); };
  form1_.M_n_z.click = [this] { open_settings(&Console::open_zones); };
  form1_.M_n_t.click = [this] { open_settings(&Console::open_terminals); };
  form1_.M_ex.click = [this] { shutdown(); };
  form1_.query_unload = [this] { shutdown(); };
  form1_.M_op.click = [this] { machine_.boxes.message("Описание содерфится в файле: ZEF-Soft.pdf", "Info"); };
  form1_.M_o_p.click = [this] { windows_.show_modal(form2_); };
}

void Console::open_settings(void (Console::*open)()) {
  (this->*open)();
}

void Console::open_equipment() {
  equipment_.load();
  equipment_.show_cards(model_.alert);
  windows_.show_modal(form22_);
}

void Console::open_zones() {
  zone_names_.load();
  equipment_.load();
  zone_settings_.prepare();
  windows_.show_modal(form33_);
}

void Console::open_terminals() {
  terminal_names_.load();
  equipment_.load();
  terminal_settings_.prepare();
  windows_.show_modal(form55_);
}

void Console::shutdown() {
  // Only the first card is given back.
  if (model_.alert.di_card0 >= 0) machine_.cards.release_card(model_.alert.di_card0);
  machine_.process.end();
}

}  // namespace evac
