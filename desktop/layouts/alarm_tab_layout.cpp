// The tab "Аварийная панель": lamps of the zones, status lines, the manual panel.
#include "desktop/layouts/form1_tabs.h"
#include "desktop/layouts/parts.h"

namespace evac::desktop {
namespace {

Node status_lines(AlarmTab& tab) {
  return column(
             {use(tab.LblU[kModeLine]).shown(Look::kHuge).wide(20).high(3).called("Оповещение").grow(3),
              use(tab.LblU[kSecondLine]).shown(Look::kHuge).wide(20).high(1.7).called("Оповещение").grow(2),
              row({words("Осталось").wide(5), use(tab.LblT)
                                                  .shown(Look::kHuge)
                                                  .wide(8)
                                                  .high(1.7)
                                                  .called("Осталось")
                                                  .while_on(messages(tab))
                                                  .grow(1)})
                  .grow(2)})
      .shown(Look::kValue)
      .packed();
}

Node emergency(Button& button, const char* letter, Look look = Look::kBig) {
  return use(button).shown(look).high(2.7).key(letter).grow(1);
}

// The words stand over their bar.
Node group_amount(const char* what, ScrollBar& bar, Label& value) {
  return column({words(what).shown(Look::kHead),
                 row({use(bar).called(what).grow(1), use(value).shown(Look::kValue).wide(2.6).called(what)})})
      .packed()
      .grow(1);
}

Node manual_panel(AlarmTab& tab) {
  const Node message = column({row({words("Сообщение").wide(5),
                                    use(tab.CmbF).wide(7).called("Сообщение").high(kEmergencyHigh).grow(1),
                                    use(tab.LblL).shown(Look::kValue).wide(4).called("Длина сообщения")}),
                               amount({"Повторы", 5}, tab.VS1, tab.LblKl, {}, kEmergencyHigh),
                               row({emergency(tab.CmdAl, "В"), emergency(tab.CmdCan, "О")})});
  const Node algorithm =
      column({amount({"№ Алг", 3.4}, tab.VSFD, tab.LblFD, "Номер алгоритма", kEmergencyHigh),
              row({emergency(tab.CmdDem, "F"), emergency(tab.CmdStF, "С", Look::kStop).grow(2)}).grow(1)});
  return frame(tab.Frm6, column({row({Node(message).grow(4), Node(algorithm).grow(3)}),
                                 row({group_amount("Номер группы", tab.VSRT1, tab.LblU1),
                                      group_amount("Кол-во дополн групп", tab.VSRT2, tab.LblU2),
                                      group_amount("Номер следующей группы", tab.VSRT3, tab.LblU3)})}));
}

}  // namespace

Node alarm_tab(Form1& form) {
  AlarmTab& tab = form;
  const Node lamps =
      frame(tab.Frm8, board(tab.PctA, 12).shown(Look::kLamp).wide(2.1).high(1.7).called("Зона"));
  const Node groups =
      row({emergency(tab.CmdAG, "х"), emergency(tab.CmdTG, "б"), emergency(tab.CmdAlAl, "а")});
  return row({column({Node(lamps).grow(1), groups}).grow(1),
              column({status_lines(tab).grow(1), manual_panel(tab)}).grow(1)});
}

}  // namespace evac::desktop
