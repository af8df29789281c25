// The windows of the weekly timer: the editor of the programmes and the schedule.
#include "desktop/layouts/layouts.h"
#include "desktop/layouts/parts.h"

namespace evac::desktop {
namespace {

Node event(Form3& form) {
  Nodes days;
  for (Button& day : form.CmdW) days.push_back(use(day).shown(Look::kCell).switching("нет", "да").grow(1));
  Nodes kinds;
  for (OptionButton* kind : form.kinds) kinds.push_back(use(*kind).called("Событие " + kind->caption()));
  const Node terminals =
      frame(form.Frame1, column({amount({"С", 3}, form.VsFr, form.LblFr, "Терминалы с"),
                                 amount({"По", 3}, form.VsTo, form.LblTo, "Терминалы по")}));
  return row({column({amount({"Часы", 6}, form.VSH, form.LblH), amount({"Минуты", 6}, form.VSM, form.LblM),
                      amount({"Секунды", 6}, form.VSS, form.LblS), row(std::move(days)), space()})
                  .grow(1),
              column(std::move(kinds)),
              column({row({use(form.CmbF1).called("Сообщение").wide(12).grow(1), words("Длина"),
                           use(form.LblL3).shown(Look::kValue).wide(4).called("Длина сообщения")}),
                      row({use(form.CmdS).grow(1), use(form.CmdSt).grow(1)}),
                      row({words("Функция").wide(6), use(form.Cmb1).called("Функция").grow(1)}),
                      row({Node(terminals).grow(1),
                           column({amount({"№уст", 4}, form.VsUs, form.LblUs, "№ устройства"),
                                   amount({"№кан", 4}, form.VsTu, form.LblTu, "№ канала")})
                               .grow(1)})})
                  .grow(1)});
}

}  // namespace

WindowLayout layout(Form3& form) {
  return {form, column({row({words("Программа"), use(form.CmbLstProg).called("Программа").grow(1),
                             use(form.CmdSas).key("П"), use(form.CmdR).key("Р")}),
                        use(form.LblHead),
                        use(form.Lst1).called("События").high(10).cut_at({3, 3, 3, 3, 3, 10, 3, 3}).grow(1),
                        row({words("Запись"), use(form.LblNp).shown(Look::kValue).wide(3).called("Запись"),
                             space(), use(form.CmdAdd).high(2).key("Д"), use(form.CmdDel).high(2).key("У")}),
                        event(form), foot({use(form.CmdSave).key("С"), use(form.Command2).key("З")})})};
}

WindowLayout layout(FrmTm& form) {
  return {form, column({row({use(form.Label1).grow(1), use(form.Label2).grow(1)}),
                        use(form.Lst1).called("Расписание").high(12).wide(26).cut_at({13}).grow(1),
                        foot({use(form.CmdAdd).key("Д"), use(form.Command3).key("У"),
                              use(form.Command2).key("С"), use(form.Command1).key("В")})})};
}

WindowLayout layout(Frm8& form) {
  return {form,
          column({use(form.Label1), use(form.Lst1).called("Программы").high(8).wide(20).grow(1),
                  use(form.Label2), foot({use(form.Command1).key("Д"), use(form.Command2).key("О")})}),
          OutOfSight(form.MonthView1)};
}

}  // namespace evac::desktop
