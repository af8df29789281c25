#include "app/console.h"

namespace evac {
namespace {

// The bar writes its value into the label.
void show_value(ScrollBar& bar, Label& label) {
  bar.change = [&bar, &label] { label.set_caption(std::to_string(bar.value())); };
}

}  // namespace

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
      form5_(windows_),
      form7_(windows_),
      journal_(model_.calendar, model_.settings, machine.loop, machine.files),
      link_({.state = model_.link, .port = machine.port}),
      dispatcher_({.state = model_.link,
                   .wait = reply_wait_,
                   .link = link_,
                   .loop = machine.loop,
                   .strip = form1_,
                   .stores = form1_}),
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
      zone_lamps_(form1_, form1_),
      zone_console_(model_.zones, model_.sources, model_.settings, model_.paint, form1_, form1_, zone_lamps_,
                    form1_.TerminalsTab::LblZ, link_, machine.boxes),
      terminal_console_(model_.terminals, model_.paint, form1_, terminal_settings_, link_, machine.boxes),
      alert_store_(model_.settings, model_.algorithms, machine.files, machine.boxes),
      message_lists_(model_.messages, model_.settings, form1_, form5_, machine.media.MP2),
      message_preview_(model_.settings, form5_, message_lists_, machine.media.MP2, machine.files,
                       machine.boxes),
      zone_choice_(form7_),
      algorithm_editor_(model_.algorithms, alert_store_, form5_, message_lists_, zone_choice_, machine.boxes),
      alert_settings_(model_.settings, model_.alert, model_.sources, model_.supervision, alert_store_,
                      message_lists_, message_preview_, algorithm_editor_, form5_, form1_, form1_, form1_,
                      machine.loop, machine.boxes),
      house_(model_.player, model_.timer, model_.supervision, form1_, form1_, form1_, terminal_console_),
      alert_end_(model_.alert, model_.settings, form1_, zone_lamps_, machine.media.MP1, machine.media.MP2,
                 link_, journal_),
      block_alert_(model_.alert, model_.settings, model_.link, form1_, zone_lamps_, house_, machine.media.MP2,
                   machine.loop, machine.boxes, journal_),
      algorithm_run_(model_.alert, model_.algorithms, model_.sources, form1_, zone_lamps_, house_,
                     model_.settings, machine.media.MP2, machine.loop, machine.boxes, link_, journal_),
      alert_engine_(model_.alert, model_.settings, form1_, machine.cards, block_alert_, algorithm_run_,
                    alert_end_, journal_),
      manual_alert_(model_.alert, model_.settings, model_.paint, form1_, zone_lamps_, alert_end_,
                    machine.media.MP1, machine.loop, machine.boxes, link_, journal_) {
  wire();
  wire_equipment();
  wire_cells();
  wire_zones();
  wire_terminals();
  wire_alert();
  wire_alert_settings();
  wire_menu();
}

Console::~Console() {
  machine_.port.receive = nullptr;
}

void Console::wire() {
  // Link.
  machine_.port.receive = [this] { link_.receive(); };
  link_.frame_received = [this] { dispatcher_.dispatch(); };
  reply_wait_.answer = [this] { dispatcher_.answer_poll(); };
  form1_.Timer1.tick = [this] { reply_wait_.tick(); };

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

void Console::wire_alert() {
  form1_.Timer4.tick = [this] { alert_engine_.tick(); };
  form1_.Timer5.tick = [this] { block_alert_.tick(); };
  form1_.Timer6.tick = [this] { manual_alert_.tick(); };
  form1_.Timer7.tick = [this] { algorithm_run_.tick(); };

  form1_.CmdAl.click = [this] { manual_alert_.start_message(); };
  form1_.CmdCan.click = [this] { manual_alert_.cancel_message(); };
  form1_.CmdDem.click = [this] { manual_alert_.start_algorithm(); };
  form1_.CmdStF.click = [this] { manual_alert_.stop_detection(); };
  form1_.CmdAlAl.click = [this] { manual_alert_.alert_all_zones(); };
  form1_.VS1.change = [this] { manual_alert_.plays_changed(); };
  form1_.VSFD.change = [this] { manual_alert_.test_zone_changed(); };
  show_value(form1_.VSRT1, form1_.LblU1);
  show_value(form1_.VSRT2, form1_.LblU2);
  show_value(form1_.VSRT3, form1_.LblU3);
  form1_.CmbF.click = [this] { message_lists_.show_length(form1_.CmbF.text(), form1_.AlarmTab::LblL); };
}

void Console::wire_alert_settings() {
  form1_.M_n_op.click = [this] { open_settings(&Console::open_alert_settings); };
  form5_.Opt1.on_click([this](int i) { alert_settings_.type_chosen(i); });
  form5_.Opt2.on_click([this](int i) { alert_settings_.source_chosen(i); });
  form5_.ChkM.click = [this] { alert_settings_.scan_clicked(); };
  form5_.VsFr.change = [this] { alert_settings_.from_changed(); };
  form5_.VsTo.change = [this] { alert_settings_.to_changed(); };
  form5_.CmdSave.click = [this] { alert_settings_.save(); };
  form5_.Command2.click = [this] { windows_.hide(form5_); };

  show_value(form5_.VS1, form5_.LblKl);
  show_value(form5_.VS2, form5_.Lblkl2);
  show_value(form5_.VS3, form5_.LblKl3);
  show_value(form5_.VsPo, form5_.LblPo);
  show_value(form5_.VSRT1, form5_.LblU1);
  show_value(form5_.VSRT2, form5_.LblU2);
  show_value(form5_.VSRT3, form5_.LblU3);
  show_value(form5_.VSH, form5_.LblH);
  show_value(form5_.VSM, form5_.LblM);
  show_value(form5_.VSkS, form5_.LblKs);

  ComboBox* const choices[] = {&form5_.CmbF1, &form5_.CmbF2, &form5_.CmbF3};
  Button* const sounds[] = {&form5_.CmdSound1, &form5_.CmdSound2, &form5_.CmdSound3};
  Button* const stops[] = {&form5_.CmdStop1, &form5_.CmdStop2, &form5_.CmdStop3};
  for (int n = 1; n <= 3; ++n) {
    choices[n - 1]->click = [this, n] { message_preview_.chosen(n); };
    sounds[n - 1]->click = [this, n] { message_preview_.play(n); };
    stops[n - 1]->click = [this, n] { message_preview_.stop(n); };
  }

  form5_.VSNA.change = [this] { algorithm_editor_.algorithm_changed(); };
  form5_.CmdAdd.click = [this] { algorithm_editor_.add_step(); };
  form5_.CmdDel.click = [this] { algorithm_editor_.delete_step(); };
  form5_.CmdZ.click = [this] { algorithm_editor_.choose_zones(); };
  form5_.CmdPF.click = [this] { algorithm_editor_.print(); };
  for (auto& list : form5_.Lst1) list.double_click = [this] { algorithm_editor_.delete_step(); };

  form7_.Chk.on_click([this](int) { zone_choice_.zone_clicked(); });
  form7_.ChkAll.click = [this] { zone_choice_.all_clicked(); };
  form7_.CmdSave.click = [this] { zone_choice_.save(); };
  form7_.Command2.click = [this] { windows_.hide(form7_); };
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
  equipment_.load(EquipmentSettings::Reading::kByWindow);
  equipment_.show_cards(model_.alert);
  windows_.show_modal(form22_);
}

void Console::open_zones() {
  zone_names_.load();
  equipment_.load(EquipmentSettings::Reading::kByWindow);
  zone_settings_.prepare();
  windows_.show_modal(form33_);
}

void Console::open_alert_settings() {
  alert_settings_.open();
}

void Console::open_terminals() {
  terminal_names_.load();
  equipment_.load(EquipmentSettings::Reading::kByWindow);
  terminal_settings_.prepare();
  windows_.show_modal(form55_);
}

void Console::shutdown() {
  // Only the first card is given back.
  if (model_.alert.di_card0 >= 0) machine_.cards.release_card(model_.alert.di_card0);
  machine_.process.end();
}

}  // namespace evac
