// FrmTm and Frm8: the schedule of the programmes, and the choice of a programme and its range of dates.
#pragma once

#include "platform/controls.h"

namespace evac {

struct FrmTm : Form {
  explicit FrmTm(Windows& windows) : Form(windows, "FrmTm", "Расписание программ") {}
  Place at = place();

  Label Label1{at, "Label1", "Программы"};
  Label Label2{at, "Label2", "Диапазон дат"};
  ListBox Lst1{at, "Lst1"};
  Button CmdAdd{at, "CmdAdd", "Добавить программу"};
  Button Command3{at, "Command3", "Удалить программу"};
  Button Command2{at, "Command2", "Сохранить"};
  Button Command1{at, "Command1", "Выход"};
};

struct Frm8 : Form {
  explicit Frm8(Windows& windows) : Form(windows, "Frm8", "Выберите программу") {}
  static constexpr int kMostDays = 31;
  Place at = place();

  Label Label1{at, "Label1", "Выберите программу"};
  ListBox Lst1{at, "Lst1"};
  Label Label2{at, "Label2", "Выберите диапазон дат"};
  MonthCalendar MonthView1{at, "MonthView1", kMostDays};
  Button Command1{at, "Command1", "Добавить"};
  Button Command2{at, "Command2", "Отменить"};
};

}  // namespace evac
