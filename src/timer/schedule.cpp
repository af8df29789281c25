#include "timer/schedule.h"

#include "model/text.h"
#include "platform/windows.h"
#include "store/programme_files.h"

namespace evac {

void Schedule::open() {
  doors_.form.windows().show_modal(doors_.form);
  doors_.form.Lst1.clear();
}

void Schedule::remove_entry() {
  ListBox& entries = doors_.form.Lst1;
  if (entries.selected() < 0) return doors_.boxes.message("Выберите программу");
  if (doors_.boxes.ask("Действительно удалить?", "???")) entries.remove(entries.selected());
}

void Schedule::save() {
  doors_.programmes.save_schedule(doors_.form.Lst1.rows());
}

void Schedule::choose() {
  Frm8& choice = doors_.choice;
  choice.Lst1.clear();
  choice.Lst1.add_all(doors_.editor.CmbLstProg.rows());
  choice.Command1.set_enabled(false);
  choice.MonthView1.set_visible(false);
  const Date today = date_of(doors_.loop.wall());
  choice.MonthView1.set_range(today, today);
  sch_d1_.clear();
  sch_d2_.clear();
  choice.windows().show_modal(choice);
}

void Schedule::programme_chosen() {
  doors_.choice.Command1.set_enabled(true);
  doors_.choice.MonthView1.set_visible(true);
}

void Schedule::range_chosen() {
  MonthCalendar& calendar = doors_.choice.MonthView1;
  if (!calendar.visible()) return;  // set to today, not chosen
  sch_d1_ = short_date_text(calendar.from());
  sch_d2_ = short_date_text(calendar.to());
  doors_.boxes.message(join("Диапазон дат: с ", sch_d1_, " по ", sch_d2_));
  calendar.set_visible(false);
  calendar.set_visible(true);
}

void Schedule::add_entry() {
  const ListBox& programmes = doors_.choice.Lst1;
  if (programmes.selected() < 0) return doors_.boxes.message("Выберите программу из списка");
  if (sch_d1_.empty()) return doors_.boxes.message("Выберите диапазон дат из календаря");
  doors_.form.Lst1.add(schedule_text(programmes.row(programmes.selected()), sch_d1_, sch_d2_));
  sch_d1_.clear();
  doors_.choice.windows().hide(doors_.choice);
}

}  // namespace evac
