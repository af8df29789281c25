#include "app/console.h"

namespace evac {

Console::Console(const Machine& machine)
    : machine_(machine),
      windows_(machine.loop, machine.windows),
      form1_(windows_, machine.files),
      form2_(windows_),
      journal_(model_.calendar, model_.settings, machine.loop, machine.files),
      link_(model_.link, machine.port),
      dispatcher_(model_.link, link_, machine.loop, form1_, form1_),
      clock_line_(model_.calendar, form1_, machine.loop),
      audio_matrix_(model_.sources, form1_, link_),
      alert_store_(model_.settings, machine.files, machine.boxes) {
  wire();
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

void Console::wire_menu() {
  form1_.M_ex.click = [this] { shutdown(); };
  form1_.query_unload = [this] { shutdown(); };
  form1_.M_op.click = [this] { machine_.boxes.message("Описание содерфится в файле: ZEF-Soft.pdf", "Info"); };
  form1_.M_o_p.click = [this] { windows_.show_modal(form2_); };
}

void Console::open_settings(void (Console::*open)()) {
  (this->*open)();
}

void Console::shutdown() {
  // Only the first card is given back.
  if (model_.alert.di_card0 >= 0) machine_.cards.release_card(model_.alert.di_card0);
  machine_.process.end();
}

}  // namespace evac
