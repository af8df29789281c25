// The settings windows of alerting.
#include "desktop/layouts/layouts.h"
#include "desktop/layouts/parts.h"

namespace evac::desktop {
namespace {

// A message: its file, its length, and the two buttons that let it be heard.
Node message(ComboBox& file, Label& length, Button& play, Button& stop) {
  return column({row({use(file).called("Сообщение").wide(9).grow(1),
                      use(length).shown(Look::kValue).wide(4).called("Длина")}),
                 row({use(play).grow(1), use(stop).grow(1)})});
}

Node types(Form5& form) {
  Nodes choices = {words("Тип оповещения").shown(Look::kBig)};
  for (OptionButton& type : form.Opt1) choices.push_back(use(type));
  choices.push_back(words("Источник звука").shown(Look::kBig));
  for (OptionButton& source : form.Opt2) choices.push_back(use(source));
  choices.push_back(space());
  return column(std::move(choices));
}

Node block(Form5& form) {
  return frame(form.Frm1, column({message(form.CmbF1, form.LblL, form.CmdSound1, form.CmdStop1),
                                  amount("Повторы", form.VS1, form.LblKl, 5), space()}));
}

Node manual(Form5& form) {
  return frame(form.Frm2, column({message(form.CmbF2, form.LblL2, form.CmdSound2, form.CmdStop2),
                                  amount("Повторы", form.VS2, form.Lblkl2, 5), space()}));
}

Node supervision(Form5& form) {
  return column({words("Контроль терминалов").shown(Look::kBig),
                 row({use(form.ChkM), use(form.ChkZ), space()}), amount("Часы", form.VSH, form.LblH, 7.5),
                 amount("Минуты", form.VSM, form.LblM, 7.5),
                 amount(form.LblCycles, form.VSkS, form.LblKs, 7.5), space()});
}

Node algorithms(Form5& form) {
  // Stops in step with the words of the heading.
  const std::vector<double> stops = {4.4, 4.57, 8.5, 4.3};
  return frame(
      form.Frm3,
      row({column({use(form.LblHead).wide(24), pile(form.Lst1).cut_at(stops).wide(34).high(10).grow(1),
                   row({use(form.CmdAdd).high(2).grow(1), use(form.CmdDel).high(2).grow(1)})})
               .grow(1),
           column({amount("№ алгоритма", form.VSNA, form.LblNa, 6),
                   message(form.CmbF3, form.LblL3, form.CmdSound3, form.CmdStop3),
                   amount("Повторы", form.VS3, form.LblKl3, 6), use(form.CmdZ).high(2),
                   use(form.CmdPF).high(2), use(form.List1).wide(16).high(4).grow(1)})}));
}

Node shown_only(Form5& form) {
  return row({column({amount("С зоны", form.VsFr, form.LblFr, 6), amount("По зону", form.VsTo, form.LblTo, 6),
                      amount("Порядок", form.VsPo, form.LblPo, 6)})
                  .grow(1),
              column({amount(form.LblGroup, form.VSRT1, form.LblU1, 12.5),
                      amount(form.LblMore, form.VSRT2, form.LblU2, 12.5),
                      amount(form.LblNext, form.VSRT3, form.LblU3, 12.5)})
                  .grow(1)});
}

}  // namespace

WindowLayout layout(Form5& form) {
  return {form,
          column({row({types(form), block(form).grow(1), manual(form).grow(1), supervision(form).grow(1)}),
                  algorithms(form).grow(1), shown_only(form),
                  row({use(form.ChkUK), use(form.ChkA), space(), use(form.CmdSave).wide(8).high(2.2),
                       use(form.Command2).wide(8).high(2.2)})})};
}

WindowLayout layout(Form7& form) {
  return {form, column({frame(form.Frame1, board(form.Chk, 12).wide(3.6)).grow(1), use(form.ChkAll),
                        foot({use(form.CmdSave), use(form.Command2)})})};
}

}  // namespace evac::desktop
