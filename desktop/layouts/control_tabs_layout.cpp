// The tabs of the player and of supervision: the terminal scan, the terminals' control, the weekly timer.
#include "desktop/layouts/form1_tabs.h"

namespace evac::desktop {

namespace {

Node transport(PlayerTab& tab) {
  const auto key = [](Button& button, const char* words) {
    return use(button).wide(3).high(1.9).called(words).grow(1);
  };
  return row({key(tab.CmdPMP, "Питание плеера").wide(4), key(tab.CmdPrevMP, "Предыдущая дорожка"),
              key(tab.CmdPlayMP, "Воспроизведение"), key(tab.CmdPauseMP, "Пауза"),
              key(tab.CmdStopMP, "Стоп плеера"), key(tab.CmdNextMP, "Следующая дорожка"),
              key(tab.CmdDownMP, "Тише"), key(tab.CmdUpMP, "Громче"),
              use(tab.LblMPU).shown(Look::kValue).wide(4).high(1.9).called("Громкость плеера"),
              use(tab.CmdCicl2).wide(5).high(1.9).hinted("После последней дорожки снова первая")});
}

Node list_keys(PlayerTab& tab) {
  const auto key = [](Button& button, const char* tip) { return use(button).hinted(tip).grow(1); };
  return row({key(tab.CmdListMP, "Показать дорожки; правая кнопка — перейти к номеру"),
              key(tab.CmdLpl, "Показать сохранённые списки"), key(tab.CmdCrpl, "Сохранить список"),
              key(tab.CmdAddPl, "Добавить дорожки"),
              key(tab.CmdCln, "Заново собрать список из папки PlayList"),
              key(tab.CmdSVL, "Подсчитать длительность списка")});
}

Node tags(PlayerTab& tab) {
  const auto tag = [](Label& head, Label& text) {
    return column(
               {use(head).shown(Look::kHead), use(text).shown(Look::kField).wide(12).called(head.caption())})
        .packed();
  };
  return frame(tab.Frame7_1,
               column({tag(tab.Label9, tab.LblTitle), tag(tab.Label10, tab.LblArtist),
                       tag(tab.Label11, tab.LblAlbum), tag(tab.Label12, tab.LblYear),
                       tag(tab.Label13, tab.LblComment), words("Файл").shown(Look::kHead),
                       use(tab.LblII).shown(Look::kField).wide(12).high(2.4).called("Файл"), space()}));
}

}  // namespace

Node player_tab(Form1& form) {
  PlayerTab& tab = form;
  const Node position = row({track(tab.Ipos).called("Место в дорожке").grow(1), words("Осталось"),
                             use(tab.LblTMP).shown(Look::kTitle).wide(5).called("Осталось")});
  const Node beside_lists = row({use(tab.Label5), use(tab.TxtNzMp).wide(5).called("Номер трека"), space(),
                                 use(tab.LblVPL).shown(Look::kValue).wide(13).called("Длина списка")});
  const Node lists = column({list_keys(tab), beside_lists,
                             shared_place({use(tab.LstPtreckMP).called("Дорожки").high(4),
                                           use(tab.LstPll).called("Списки").high(4)})
                                 .grow(1)});
  const Node adding = column({use(tab.Drive1).called("Диски").high(3), folder_up(tab.Dir2),
                              use(tab.Dir2).called("Папки").high(2).grow(2),
                              use(tab.LstAddList).called("Файлы").high(2).grow(3)});
  const Node search = row({use(tab.CmdSeek).wide(6).hinted("Поиск по пути и тегам"), use(tab.LblSeek),
                           use(tab.TxtSeek).called("Поиск").grow(1), use(tab.CmdSeekOk).wide(4)});
  return row({frame(tab.Frame9, column({use(tab.LblUP).shown(Look::kTitle), transport(tab), position,
                                        row({Node(lists).grow(2), Node(adding).grow(1)}).grow(1), search}))
                  .grow(3),
              tags(tab).grow(1)});
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
              scan_progress(), row(std::move(heads)).packed(),
              use(panel.MSF2).called("Ответы терминалов").grow(1)}));
}

Node terminals_control(MonitorPanel& panel) {
  return frame(
      panel.Frame7_0,
      column({row({words("Монитор").wide(6), use(panel.CmdZ).wide(6).high(2.2).called("Монитор").grow(1)}),
              row({words("Ручной опрос").wide(6), use(panel.CmdArm).wide(6).high(2.2).called("Ручной опрос"),
                   use(panel.CmdSb).wide(6).high(2.2).called("Сброс опроса").grow(1)}),
              row({use(panel.PctM).wide(2.6).high(2.6).called("Состояние монитора"),
                   column({use(panel.Label3).wide(14),
                           use(panel.Lbl_m).shown(Look::kField).wide(14).called("Последний опрос")})
                       .packed()
                       .grow(1)})}));
}

Node weekly_timer(TimerPanel& panel) {
  return frame(panel.Frame7_2,
               column({row({use(panel.CmdTV).wide(6).high(2.2).called("Недельный таймер").grow(1),
                            use(panel.LblT2).wide(4.5).called("Время")}),
                       use(panel.LblTm).wide(14).called("Ближайшее событие"),
                       use(panel.LblTmr).wide(14).high(2.7).called("Что будет")}));
}

}  // namespace

Node control_tab(Form1& form) {
  MonitorPanel& monitor = form;
  return row(
      {scan_panel(form).grow(1),
       column(
           {frame(monitor.Frame8, row({terminals_control(form).grow(1), weekly_timer(form).grow(1)})),
            row({frame(monitor.Frame10, use(monitor.List5).called("Контроль состояния терминалов").high(3))
                     .grow(1),
                 frame(monitor.Frame11, use(monitor.List4).called("Статистика состояния терминалов").high(3))
                     .grow(1)})
                .grow(3),
            words("Дальше по недельному таймеру").shown(Look::kHead), timer_ahead_list().grow(2)})
           .grow(1)});
}

}  // namespace evac::desktop
