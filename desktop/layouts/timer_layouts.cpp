// The windows of the weekly timer: the editor of the programmes and the schedule.
#include "desktop/layouts/layouts.h"
#include "desktop/layouts/parts.h"
#include "desktop/timer_ahead.h"
#include "model/text.h"
#include "store/timer_record.h"

namespace evac::desktop {
namespace {

struct Column {
  const char* head;
  double width;  // the last one takes what is left
};
constexpr Column kEventColumns[] = {{"№", 2.5},       {"Время", 4.7},    {"Дни недели", 10.8},
                                    {"Функция", 8.5}, {"Сообщение", 12}, {"Терм. с", 4},
                                    {"по", 3}};
constexpr double kProgrammeColumn = 14;

// A list with its heads over its columns.
template <std::size_t N>
Node headed(const Column (&columns)[N], Node list) {
  Nodes heads;
  std::vector<double> stops;
  for (const Column& each : columns) {
    heads.push_back(words(each.head).wide(each.width));
    stops.push_back(each.width);
  }
  stops.pop_back();
  heads.push_back(words("").grow(1));
  return column({row(std::move(heads)).packed(), list.cut_at(std::move(stops)).grow(1)}).packed().grow(1);
}

// A record as it is read: the time in one, the days by their names, and nothing where it has nothing to say.
std::string event_as_read(std::string_view record) {
  const auto field = [record](TimerField n) { return TmField(record, n); };
  const std::string number = field(kTmNumber), function = field(kTmFunction), message = field(kTmMessage);
  const bool preset = function.find(timer_function::kPreset) != std::string::npos;
  const int time =
      (Number(field(kTmHours)) * 60 + Number(field(kTmMinutes))) * 60 + Number(field(kTmSeconds));
  return join(number.substr(0, number.find('|')), "\t", time_text(time), "\t",
              days_text(Number(field(kTmDays))), "\t", function, "\t",
              message == kNoTimerMessage ? "" : message, "\t", preset ? "" : field(kTmFrom), "\t",
              preset ? "" : field(kTmTo));
}

Node time(Form3& form) {
  Nodes days;
  for (Button& day : form.CmdW)
    days.push_back(use(day).shown(Look::kTicked).switching("нет", "да").high(2).grow(1));
  return column({amount({"Часы", 5}, form.VSH, form.LblH), amount({"Минуты", 5}, form.VSM, form.LblM),
                 amount({"Секунды", 5}, form.VSS, form.LblS), row(std::move(days)).packed()});
}

Node event(Form3& form) {
  Nodes kinds;
  for (OptionButton* kind : form.kinds) kinds.push_back(use(*kind).called("Событие " + kind->caption()));
  const Node what =
      column({row({use(form.CmbF1).called("Сообщение").wide(11).grow(1), words("Длина"),
                   use(form.LblL3).shown(Look::kValue).wide(4).called("Длина сообщения")}),
              row({use(form.CmdS).grow(1), use(form.CmdSt).grow(1)}),
              row({words("Функция").wide(5), use(form.Cmb1).called("Функция").grow(1)}), space()});
  const Node where = frame(form.Frame1, column({amount({"С", 2}, form.VsFr, form.LblFr, "Терминалы с"),
                                                amount({"По", 2}, form.VsTo, form.LblTo, "Терминалы по")}));
  return row({time(form).grow(4), column(std::move(kinds)).packed(), Node(what).grow(4),
              column({amount({"№уст", 3}, form.VsUs, form.LblUs, "№ устройства"),
                      amount({"№кан", 3}, form.VsTu, form.LblTu, "№ канала"), where})
                  .grow(4)});
}

}  // namespace

WindowLayout layout(Form3& form) {
  return {form,
          column({row({words("Программа"), use(form.CmbLstProg).called("Программа").grow(1),
                       use(form.CmdSas).key("П"), use(form.CmdR).key("Р")}),
                  headed(kEventColumns,
                         use(form.Lst1).called("События").reading(event_as_read).high(13).wide(62)),
                  event(form),
                  row({words("Запись"), use(form.LblNp).shown(Look::kValue).wide(3).called("Запись"),
                       use(form.CmdAdd).high(2.2).key("Д"), use(form.CmdDel).high(2.2).key("У"), space(),
                       use(form.CmdSave).wide(8).high(2.2).key("С"),
                       use(form.Command2).wide(8).high(2.2).key("З")})}),
          OutOfSight(form.LblHead)};
}

WindowLayout layout(FrmTm& form) {
  return {
      form,
      column({row({use(form.Label1).wide(kProgrammeColumn), use(form.Label2).grow(1)}).packed(),
              use(form.Lst1).called("Расписание").high(10).wide(32).cut_at({kProgrammeColumn}).grow(1),
              words("Сохранённое действует со следующего дня или запуска. Закрытое окно список не хранит:"),
              words("открытое снова, оно пусто до смены даты, и «Сохранить» сотрёт прежнее расписание."),
              foot({use(form.CmdAdd).key("Д"), use(form.Command3).key("У"), use(form.Command2).key("С"),
                    use(form.Command1).key("В")})})};
}

WindowLayout layout(Frm8& form) {
  return {
      form,
      column({row({column({use(form.Label1), use(form.Lst1).called("Программы").wide(13).grow(1)}).grow(1),
                   column({use(form.Label2), use(form.MonthView1).called("Диапазон дат").grow(1)})}),
              foot({use(form.Command1).key("Д"), use(form.Command2).key("О")})})};
}

}  // namespace evac::desktop
