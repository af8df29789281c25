// The main window: the header strip, the alarm bar, and the seven tabs beneath it; and the about
// window.
#include "desktop/layouts/form1_tabs.h"
#include "desktop/layouts/layouts.h"
#include "desktop/version.h"

namespace evac::desktop {
namespace {

Node header_strip(Form1& form) {
  AlarmTab& alarm = form;
  const Node left = column({use(form.LblDate).shown(Look::kTitle).wide(25).called("Часы"),
                            row({use(form.PctD1).called("Связь"), use(form.LblCon).wide(13).called("Связь"),
                                 use(form.PctD0).called("Программа контроллера"),
                                 use(form.LblSs).wide(13).called("Программа контроллера")})})
                        .packed();
  const Node right =
      column({use(alarm.LblU[kModeLine]).shown(Look::kBig).wide(22).called("Оповещение"),
              row({use(alarm.LblU[kSecondLine]).shown(Look::kBig).wide(16).grow(1).called("Оповещение"),
                   use(alarm.LblT).shown(Look::kBig).wide(5).called("Осталось").while_on(messages(alarm))})})
          .shown(Look::kValue)
          .packed();
  return column({row({Node(left).grow(1), Node(right).grow(1)}),
                 row({use(form.Picture2).wide(12).called("Опрос"), box_note().grow(1), stand_button()}),
                 notices()})
      .packed();
}

// Picture stores and listers; the sixth channel row, which does nothing; the status lines that nothing
// writes; the log of two inputs that only other code could fill.
OutOfSight form1_out_of_sight(Form1& form) {
  return OutOfSight(form.PctD2, form.PctD3, form.PctD4, form.Pct_Kon, form.Pct_Koff, form.Dir1, form.Dir3,
                    form.File1, form.File2, form.File3, form.Opt[0], form.VS_Z[0], form.TerminalsTab::LblZ[0],
                    form.LblU[1], form.LblU[2], form.LblU[3], form.LblU[4], form.Label1, form.Text1,
                    form.Text2, form.PowerTab::List1, form.PowerTab::List2, form.PowerTab::List3,
                    form.PowerTab::Command1);
}

}  // namespace

Controls messages(AlarmTab& tab) {
  return {&tab.Timer5, &tab.Timer6, &tab.Timer7};
}

WindowLayout layout(Form1& form) {
  return {.form = form,
          .content = column(
              {header_strip(form), watch_bar(),
               tabs(form.SSTab1, {alarm_tab(form), zones_tab(form), terminals_tab(form), player_tab(form),
                                  sources_tab(form), control_tab(form), power_tab(form)})
                   .grow(1)}),
          .out_of_sight = form1_out_of_sight(form),
          .set_apart = {&form.M_ex}};
}

WindowLayout layout(Form2& form) {
  return {form,
          row({use(form.Picture1).wide(6).high(6).called("Эмблема"),
               column({use(form.Label1).shown(Look::kTitle), use(form.Label2),
                       words(std::string("Версия ") + kVersion), space(), row({space(), close_button()})})})};
}

}  // namespace evac::desktop
