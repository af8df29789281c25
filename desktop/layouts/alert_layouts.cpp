// The settings windows of alerting.
#include "desktop/layouts/layouts.h"
#include "desktop/layouts/parts.h"
#include "store/algorithm_record.h"

namespace evac::desktop {
namespace {

// A message: its file, its length, and the two buttons that let it be heard. `whose` tells it from the
// others of the window.
Node message(const std::string& whose, ComboBox& file, Label& length, Button& play, Button& stop) {
  return column({row({use(file).called("Сообщение " + whose).wide(9).grow(1),
                      use(length).shown(Look::kValue).wide(4).called("Длина сообщения " + whose)}),
                 row({use(play).called("Прослушать сообщение " + whose).grow(1),
                      use(stop).called("Стоп сообщения " + whose).grow(1)})});
}

Node types(Form5& form) {
  Nodes choices = {words("Тип оповещения").shown(Look::kBig)};
  for (OptionButton& type : form.Opt1) choices.push_back(use(type).called("Тип " + type.caption()));
  choices.push_back(words("Источник звука").shown(Look::kBig));
  for (OptionButton& source : form.Opt2)
    choices.push_back(use(source).called("Источник " + source.caption()));
  choices.push_back(space());
  return column(std::move(choices)).packed();
}

Node block(Form5& form) {
  return frame(form.Frm1,
               column({message("блока", form.CmbF1, form.LblL, form.CmdSound1, form.CmdStop1),
                       amount({"Повторы", 5}, form.VS1, form.LblKl, "Повторы сообщения блока"), space()}));
}

Node manual(Form5& form) {
  return frame(form.Frm2,
               column({message("вручную", form.CmbF2, form.LblL2, form.CmdSound2, form.CmdStop2),
                       amount({"Повторы", 5}, form.VS2, form.Lblkl2, "Повторы сообщения вручную"), space()}));
}

Node supervision(Form5& form) {
  return column({words("Контроль терминалов").shown(Look::kBig),
                 row({use(form.ChkM).called("Контроль терминалов"), use(form.ChkZ), space()}),
                 amount({"Часы", 7.5}, form.VSH, form.LblH), amount({"Минуты", 7.5}, form.VSM, form.LblM),
                 amount(form.LblCycles, form.VSkS, form.LblKs, 7.5), space()});
}

// The zones of a step by their numbers, neighbours drawn together: "1, 4, 7–12".
std::string zone_numbers(std::string_view zones) {
  if (zones.starts_with(kAlarmMark)) return "все зоны и аварийные каналы";
  std::string text;
  const auto is_in = [&](std::size_t at) { return at < zones.size() && zones.substr(at, 1) == kZoneIn; };
  for (std::size_t first = 0; first < zones.size(); ++first) {
    if (!is_in(first)) continue;
    std::size_t last = first;
    while (is_in(last + 1)) ++last;
    if (!text.empty()) text += ", ";
    text += std::to_string(first + 1);
    if (last > first) text += (last > first + 1 ? "–" : ", ") + std::to_string(last + 1);
    first = last;
  }
  return text;
}

// A step with its zones by number; all else as the record has it.
std::string step_as_read(std::string_view record) {
  const std::string zones = AlgField(record, kAlgZones);
  const auto at = record.rfind(zones);
  if (zones.empty() || at == std::string_view::npos) return std::string(record);
  return std::string(record.substr(0, at)) + zone_numbers(zones);
}

Node algorithms(Form5& form) {
  // Stops in step with the words of the heading.
  const std::vector<double> stops = {4.4, 4.57, 8.5, 4.3};
  const Node steps = pile(form.Lst1).cut_at(stops).reading(step_as_read).called("Шаги алгоритма");
  return frame(form.Frm3,
               row({column({use(form.LblHead).wide(24), Node(steps).wide(34).high(4).grow(1),
                            row({use(form.CmdAdd).high(2).key("Д").grow(1),
                                 use(form.CmdDel).high(2).key("У").grow(1)})})
                        .grow(1),
                    column({amount({"№ алгоритма", 6}, form.VSNA, form.LblNa, "Номер алгоритма"),
                            message("шага", form.CmbF3, form.LblL3, form.CmdSound3, form.CmdStop3),
                            amount({"Повторы", 6}, form.VS3, form.LblKl3, "Повторы сообщения шага"),
                            row({use(form.CmdZ).high(2).called("Зоны шага").key("З").grow(1),
                                 use(form.CmdPF).high(2).key("П").grow(1)}),
                            use(form.List1).called("Напечатано в файл").wide(16).high(2).grow(1)})}));
}

Node shown_only(Form5& form) {
  return row(
      {column({amount({"С зоны", 6}, form.VsFr, form.LblFr), amount({"По зону", 6}, form.VsTo, form.LblTo),
               amount({"Порядок", 6}, form.VsPo, form.LblPo)})
           .grow(1),
       column({amount(form.LblGroup, form.VSRT1, form.LblU1, 12.5),
               amount(form.LblMore, form.VSRT2, form.LblU2, 12.5),
               amount(form.LblNext, form.VSRT3, form.LblU3, 12.5)})
           .grow(1)});
}

}  // namespace

WindowLayout layout(Form5& form) {
  return {.form = form,
          .content = column(
              {row({types(form), block(form).grow(1), manual(form).grow(1), supervision(form).grow(1)}),
               algorithms(form).grow(1), shown_only(form),
               row({use(form.ChkUK), use(form.ChkA), space(), use(form.CmdSave).wide(8).high(2.2).key("С"),
                    use(form.Command2).wide(8).high(2.2).key("В")})}),
          .opens_on = {&form.Opt1[0], &form.Opt1[1], &form.Opt1[2]}};
}

WindowLayout layout(Form7& form) {
  return {form, column({frame(form.Frame1, board(form.Chk, 12).wide(3.6).called("Зона")).grow(1),
                        use(form.ChkAll), foot({use(form.CmdSave).key("С"), use(form.Command2).key("В")})})};
}

}  // namespace evac::desktop
