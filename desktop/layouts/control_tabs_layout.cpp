// The tabs of the player and of supervision: the terminal scan, the terminals' control, the weekly timer.
#include "desktop/layouts/form1_tabs.h"

namespace evac::desktop {

Node player_tab(Form1& form) {
  PlayerTab& tab = form;
  return row({frame(tab.Frame9, column({use(tab.LblUP).shown(Look::kTitle),
                                        use(tab.CmdPMP).shown(Look::kBig).high(3).called("Плеер"), space()}))
                  .grow(1),
              frame(tab.Frame7_1, column({space()})).grow(2)});
}

namespace {

Node scan_panel(ScanPanel& panel) {
  Nodes heads;
  for (Button& head : panel.Cd1)
    heads.push_back(use(head).grow(1).wide(4).called("Упорядочить, " + head.caption()));
  return frame(
      panel.Frame15,
      column({row({use(panel.CmdSkan).shown(Look::kBig).wide(7).high(2.4).called("Опрос терминальных блоков"),
                   column({use(panel.LbPrB).wide(16), use(panel.PB1).called("Ход опроса")}).packed().grow(1),
                   column({words("Терминал"),
                           use(panel.Lbl_A[4]).shown(Look::kValue).wide(4).called("Терминал")})
                       .packed()}),
              row(std::move(heads)).packed(), use(panel.MSF2).called("Ответы терминалов").grow(1)}));
}

Node terminals_control(MonitorPanel& panel) {
  return frame(
      panel.Frame7_0,
      column({row({words("Монитор").wide(6), use(panel.CmdZ).wide(6).high(2.2).called("Монитор"),
                   use(panel.PctM).called("Состояние монитора")}),
              row({words("Ручной опрос").wide(6), use(panel.CmdArm).wide(6).high(2.2).called("Ручной опрос"),
                   use(panel.CmdSb).wide(6).high(2.2).called("Сброс опроса")}),
              use(panel.Label3).wide(14),
              use(panel.Lbl_m).shown(Look::kValue).wide(15).called("Последний опрос")}));
}

Node weekly_timer(TimerPanel& panel) {
  return frame(panel.Frame7_2, column({use(panel.CmdTV).wide(6).high(2.2).called("Недельный таймер"),
                                       use(panel.LblTm).wide(14), use(panel.LblT2).wide(14),
                                       use(panel.LblTmr).wide(14), space()}));
}

}  // namespace

Node control_tab(Form1& form) {
  MonitorPanel& monitor = form;
  return row(
      {scan_panel(form).grow(1),
       column(
           {frame(monitor.Frame8, row({terminals_control(form).grow(1), weekly_timer(form).grow(1)})),
            row({frame(monitor.Frame10, use(monitor.List5).called("Контроль состояния терминалов")).grow(1),
                 frame(monitor.Frame11, use(monitor.List4).called("Статистика состояния терминалов"))
                     .grow(1)})
                .grow(1)})
           .grow(1)});
}

}  // namespace evac::desktop
