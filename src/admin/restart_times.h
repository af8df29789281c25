// The scheduled restart of the machine: up to five times of the day, kept in F_reset.dat, set in FrmRez, and
// compared with the clock once a second.
#pragma once

#include "admin/restart_form.h"
#include "platform/machine.h"
#include "store/admin_files.h"

namespace evac {

class RestartTimes {
 public:
  struct Doors {
    RestartState& restart;
    DataFolder& folder;
    FrmRez& form;
    const EventLoop& loop;
    Boxes& boxes;
    Process& process;
  };
  explicit RestartTimes(const Doors& doors) : doors_(doors) {}

  // From the file. A time that can't be read ends the reading: its slot stays on at midnight, later ones off.
  void LoadResetTimes();
  // The restart when a slot's time is this very second: a second that is missed is missed for the day.
  void test();

  // Shows the window until it is closed; it fills itself a moment later.
  void open();
  // Timer1 of the window: the slots as they are in memory.
  void show_slots();
  // A user's hand on the mark of slot n: it holds at once, before anything is saved.
  void toggle(int n);
  // A key for the time of slot n: only what leads to a time passes.
  void filter(int n, std::string& key);
  // CmdPrim: keeps the slots up to the first time that is none. What can't be written ends it in silence.
  void apply();
  // CmdClose.
  void leave();

 private:
  void show_slot(int n, bool on);
  void wake() { doors_.form.CmdPrim.set_enabled(true); }

  const Doors doors_;
  bool muted_ = false;  // the marks are being set by the program
};

}  // namespace evac
