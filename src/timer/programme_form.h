// Form3: the editor of the weekly programmes.
#pragma once

#include "model/system_model.h"
#include "platform/controls.h"

namespace evac {

struct Form3 : Form {
  explicit Form3(Windows& windows) : Form(windows, "Form3", "Настройка программы недельного таймера") {
    CmdSt.set_enabled(false);
  }
  Place at = place();

  ComboBox CmbLstProg{at, "CmbLstProg"};  // the programme's name
  Button CmdSas{at, "CmdSas", "Добавить программу"};
  Button CmdSave{at, "CmdSave", "Сохранить"};
  Button CmdR{at, "CmdR", "Расписание"};
  Button Command2{at, "Command2", "Завершить"};

  Label LblHead{at, "LblHead",
                "N;прогр     Часы        Минуты   Секунды   Неделя     Сообщение             термин  С  "
                "ПО            Функция"};
  ListBox Lst1{at, "Lst1"};  // the events, as their records
  Label LblNp{at, "LblNp", "0"};
  Button CmdAdd{at, "CmdAdd", "Добавить запись"};
  Button CmdDel{at, "CmdDel", "Удалить запись"};

  ScrollBar VSH{at, "VSH", 0, 23, 0}, VSM{at, "VSM", 0, 59, 0}, VSS{at, "VSS", 0, 59, 0};
  Label LblH{at, "LblH", "0"}, LblM{at, "LblM", "0"}, LblS{at, "LblS", "0"};
  ControlArray<Button> CmdW{at, "CmdW", 1, {"ПН", "ВТ", "СР", "ЧТ", "ПТ", "СБ", "ВС"}};

  OptionGroup group;
  OptionButton Opt1{at, group, "Opt1", "Сообщение"};
  OptionButton Opt2{at, group, "Opt2", "CD/MP3"};
  OptionButton Opt3{at, group, "Opt3", "MP3"};
  OptionButton Opt4{at, group, "Opt4", "Тюнер"};
  OptionButton Opt5{at, group, "Opt5", "№ пресета"};
  const std::array<OptionButton*, 5> kinds{&Opt1, &Opt2, &Opt3, &Opt4, &Opt5};

  ComboBox CmbF1{at, "CmbF1"};  // message files, and the play-lists behind them
  Label LblL3{at, "LblL3"};     // length of the message
  Button CmdS{at, "CmdS", "Прослушать"};
  Button CmdSt{at, "CmdSt", "Стоп"};
  ComboBox Cmb1{at, "Cmb1"};  // the function

  // The terminals, or the preset in the first of them.
  static constexpr int kMost = 250;
  Frame Frame1{at, "Frame1", "№ терминалов"};
  ScrollBar VsFr{Frame1.inside(), "VsFr", 1, kMost, 1}, VsTo{Frame1.inside(), "VsTo", 1, kMost, 1};
  Label LblFr{Frame1.inside(), "LblFr", "1"}, LblTo{Frame1.inside(), "LblTo", "1"};

  ScrollBar VsUs{at, "VsUs", 1, 8, 1};  // the device
  Label LblUs{at, "LblUs", "1"};
  ScrollBar VsTu{at, "VsTu", 1, kMost, 1};  // the tuner's channel
  Label LblTu{at, "LblTu", "1"};
};

}  // namespace evac
