// What the two windows of names have in common: a list of number and name, and a line to add.
#pragma once

#include "platform/controls.h"

namespace evac {

struct NameWindow : Form {
  NameWindow(Windows& windows, std::string_view name, std::string_view title, int most_number)
      : Form(windows, name, title), VS1{place(), "VS1", 1, most_number, 1} {}

  ListBox List1{place(), "List1"};
  ScrollBar VS1;
  Label LblZ{place(), "LblZ", "1"};
  TextBox Txt1{place(), "Txt1"};
  Button CmdAdd{place(), "CmdAdd", "Добавить"};
  Button CmdDel{place(), "CmdDel", "Удалить"};
  Button CmdSave{place(), "CmdSave", "Сохранить"};
};

}  // namespace evac
