// The windows of the schedule. Its list is filled when a day is loaded, not when the window opens: closed
// once, it stays empty until then.
#pragma once

#include "timer/programme_form.h"
#include "timer/programmes.h"
#include "timer/schedule_forms.h"

namespace evac {

class Schedule {
 public:
  struct Doors {
    FrmTm& form;
    Frm8& choice;
    const Form3& editor;
    Programmes& programmes;
    const EventLoop& loop;
    Boxes& boxes;
  };
  explicit Schedule(const Doors& doors) : doors_(doors) {}

  // CmdR of the editor: shows the entries until the window is closed, which forgets them.
  void open();
  void remove_entry();
  void save();

  // CmdAdd: the programmes of the editor, and a calendar once one of them is chosen.
  void choose();
  void programme_chosen();
  void range_chosen();
  // Command1 of the choice: an entry more.
  void add_entry();

 private:
  const Doors doors_;
  std::string sch_d1_, sch_d2_;  // the range, empty until one is chosen
};

}  // namespace evac
