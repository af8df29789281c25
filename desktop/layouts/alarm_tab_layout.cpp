// The tab "Аварийная панель": lamps of the zones, status lines, the manual panel.
#include "desktop/layouts/form1_tabs.h"
#include "desktop/layouts/parts.h"

namespace evac::desktop {
namespace {

Node status_lines(AlarmTab& tab) {
  return column({use(tab.LblU[kModeLine]).shown(Look::kHuge).wide(20).high(3.2),
                 use(tab.LblU[kSecondLine]).shown(Look::kHuge).wide(20).high(1.8),
                 row({words("Осталось").wide(5), use(tab.LblT).shown(Look::kHuge).wide(8), space()})})
      .shown(Look::kValue)
      .packed();
}

Node manual_panel(AlarmTab& tab) {
  return frame(tab.Frm6, column({row({words("Сообщение").wide(5.5), use(tab.CmbF).grow(1),
                                      use(tab.LblL).shown(Look::kValue).wide(4)}),
                                 amount("Повторы", tab.VS1, tab.LblKl),
                                 row({use(tab.CmdAl).shown(Look::kBig).high(2.6).grow(1),
                                      use(tab.CmdCan).shown(Look::kBig).high(2.6).grow(1)}),
                                 amount("№ Алг", tab.VSFD, tab.LblFD),
                                 row({use(tab.CmdDem).shown(Look::kBig).high(3.2).grow(1),
                                      use(tab.CmdStF).shown(Look::kStop).high(3.2).grow(2)}),
                                 amount("Номер группы", tab.VSRT1, tab.LblU1),
                                 amount("Кол-во дополн групп", tab.VSRT2, tab.LblU2),
                                 amount("Номер следующей группы", tab.VSRT3, tab.LblU3), space()}));
}

}  // namespace

Node alarm_tab(Form1& form) {
  AlarmTab& tab = form;
  const Node lamps =
      frame(tab.Frm8, board(tab.PctA, 12).shown(Look::kLamp).wide(2.6).high(1.9).called("Зона"));
  Nodes groups;
  for (Button* button : {&tab.CmdAG, &tab.CmdTG, &tab.CmdAlAl})
    groups.push_back(use(*button).shown(Look::kBig).high(2.8).grow(1));
  return row({column({Node(lamps).grow(1), row(std::move(groups))}).grow(5),
              column({status_lines(tab), manual_panel(tab).grow(1)}).grow(3)});
}

}  // namespace evac::desktop
