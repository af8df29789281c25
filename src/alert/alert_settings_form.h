// Form5: the settings of alerting, and the steps of the algorithms.
#pragma once

#include "model/system_model.h"
#include "platform/controls.h"

namespace evac {

struct Form5 : Form {
  explicit Form5(Windows& windows) : Form(windows, "Form5", "Настройка аварийного оповещения") {}
  Place at = place();

  // The alert type, which enables one of the three frames below, and the source of a block's message.
  OptionGroup types, sources;
  ControlArray<OptionButton> Opt1 =
      options(types, "Opt1", {"Блок Q-4710", "Ручное оповещение", "Контроллер"});
  ControlArray<OptionButton> Opt2 = options(sources, "Opt2", {"Компьютер", "Внешний блок"});

  Frame Frm1{at, "Frm1", "Блок Q-4710"};
  ComboBox CmbF1{Frm1.inside(), "CmbF1"};
  Label LblL{Frm1.inside(), "LblL"};  // length of the message
  Button CmdSound1{Frm1.inside(), "CmdSound1", "Прослушать"};
  Button CmdStop1{Frm1.inside(), "CmdStop1", "Стоп"};
  ScrollBar VS1{Frm1.inside(), "VS1", 1, 100, 1};
  Label LblKl{Frm1.inside(), "LblKl", "1"};

  Frame Frm2{at, "Frm2", "Ручное оповещение"};
  ComboBox CmbF2{Frm2.inside(), "CmbF2"};
  Label LblL2{Frm2.inside(), "LblL2"};
  Button CmdSound2{Frm2.inside(), "CmdSound2", "Прослушать"};
  Button CmdStop2{Frm2.inside(), "CmdStop2", "Стоп"};
  ScrollBar VS2{Frm2.inside(), "VS2", 1, 100, 1};
  Label Lblkl2{Frm2.inside(), "Lblkl2", "1"};

  Frame Frm3{at, "Frm3", "Контроллер"};
  ScrollBar VSNA{Frm3.inside(), "VSNA", 1, kZones, 1};
  Label LblNa{Frm3.inside(), "LblNa", "1"};
  ComboBox CmbF3{Frm3.inside(), "CmbF3"};
  Label LblL3{Frm3.inside(), "LblL3"};
  Button CmdSound3{Frm3.inside(), "CmdSound3", "Прослушать"};
  Button CmdStop3{Frm3.inside(), "CmdStop3", "Стоп"};
  ScrollBar VS3{Frm3.inside(), "VS3", 1, 100, 1};
  Label LblKl3{Frm3.inside(), "LblKl3", "1"};
  Button CmdZ{Frm3.inside(), "CmdZ", "Зоны"};
  Button CmdAdd{Frm3.inside(), "CmdAdd", "<-Добавить "};
  Button CmdDel{Frm3.inside(), "CmdDel", "<-Удалить"};
  Label LblHead{Frm3.inside(), "LblHead", "Номер      Порядок   Сообщение             Повторы    "};
  // The steps of each algorithm; one list is visible.
  ControlArray<ListBox> Lst1{Frm3.inside(), "Lst1", 1, kZones};
  Button CmdPF{Frm3.inside(), "CmdPF", "Печать в файл ->"};
  ListBox List1{Frm3.inside(), "List1"};

  // Shown only: nothing keeps these or acts on them.
  ScrollBar VsFr{at, "VsFr", 1, kZones, 1}, VsTo{at, "VsTo", 1, kZones, 1}, VsPo{at, "VsPo", 1, kZones, 1};
  Label LblFr{at, "LblFr", "1"}, LblTo{at, "LblTo", "1"}, LblPo{at, "LblPo", "1"};
  Label LblGroup{at, "LblGroup", "Номер группы по умолч"};
  Label LblMore{at, "LblMore", "Кол-во дополнит групп"};
  Label LblNext{at, "LblNext", "Номер следующей группы"};
  ScrollBar VSRT1{at, "VSRT1", 1, 120, 1}, VSRT2{at, "VSRT2", 1, 120, 1}, VSRT3{at, "VSRT3", 1, 120, 1};
  Label LblU1{at, "LblU1", "1"}, LblU2{at, "LblU2", "1"}, LblU3{at, "LblU3", "1"};

  // Supervision of the terminals.
  CheckBox ChkM{at, "ChkM", "Вкл/Выкл"};
  ScrollBar VSH{at, "VSH", 0, 24, 0}, VSM{at, "VSM", 0, 55, 0};
  Label LblH{at, "LblH", "0"}, LblM{at, "LblM", "0"};
  Label LblCycles{at, "LblCycles", "Колич циклов"};
  ScrollBar VSkS{at, "VSkS", 1, 20, 1};
  Label LblKs{at, "LblKs", "1"};
  CheckBox ChkZ{at, "ChkZ", "Звуковое оповещение"};

  CheckBox ChkUK{at, "ChkUK", "Удаленный контроль"};
  CheckBox ChkA{at, "ChkA", "Ручное включение алгоритма оповещения"};

  Button CmdSave{at, "CmdSave", "Сохранить"};
  Button Command2{at, "Command2", "Выход"};

 private:
  ControlArray<OptionButton> options(OptionGroup& group, const char* name,
                                     std::vector<std::string> captions) {
    return {0, static_cast<int>(captions.size()), [&](auto& items, int i) {
              items.emplace_back(at, group, name, captions[static_cast<std::size_t>(i)], i);
            }};
  }
};

}  // namespace evac
