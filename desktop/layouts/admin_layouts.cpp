// The windows of administration: the password, the restart, the engineer's.
#include "desktop/layouts/layouts.h"
#include "desktop/layouts/parts.h"

namespace evac::desktop {
namespace {

constexpr double kPasswordWide = 14;

// A box with the label before it, which is also its name.
Nodes labelled(Label& label, TextBox& box) {
  return {use(label).wide(13), use(box).called(label.caption()).wide(kPasswordWide).grow(1)};
}

// The three numbers of a frame under their heading, and the button that sends it.
Node frame_line(Label& heading, const std::string& of, std::array<TextBox*, 3> boxes, const std::string& last,
                Button& send, const char* letter) {
  const std::string names[] = {"Канал", "Громкость", last};
  Nodes cells;
  for (std::size_t i = 0; i < boxes.size(); ++i)
    cells.push_back(use(*boxes[i]).called(names[i] + of).wide(4));
  cells.push_back(use(send).wide(10).high(2.2).key(letter));
  return column({use(heading), row(std::move(cells))});
}

}  // namespace

WindowLayout layout(FrmPsW& form) {
  return {.form = form,
          .content = column({row(labelled(form.Label2, form.Txt1)), keyboard_note(), space(),
                             foot({use(form.CmdVPsW).pointed_at().key("П"), use(form.Cmd2).key("О")})}),
          .on_enter = {{.to = form.CmdVPsW, .wakes = &form.Txt1}}};
}

WindowLayout layout(FrmPwR& form) {
  Nodes cells;
  Label* const labels[] = {&form.Label1, &form.Label2, &form.Label3};
  for (std::size_t i = 0; i < form.boxes().size(); ++i)
    for (Node& node : labelled(*labels[i], *form.boxes()[i])) cells.push_back(std::move(node));
  return {.form = form,
          .content = column({grid(2, std::move(cells)), keyboard_note(), space(),
                             foot({use(form.Cmd1).pointed_at().key("П"), use(form.Cmd2).key("В")})}),
          // A half-filled window would set an empty password.
          .on_enter = {{.to = form.Txt2, .from = {&form.Txt1}},
                       {.to = form.Txt3, .from = {&form.Txt2}},
                       {.to = form.Cmd1}}};
}

WindowLayout layout(FrmRez& form) {
  Nodes slots;
  for (int n = 1; n <= kRestartSlots; ++n) {
    const std::string number = " " + std::to_string(n);
    slots.push_back(use(form.Chk1[n]).shown(Look::kNumber).called("Перезапуск" + number).wide(4));
    slots.push_back(use(form.TxtTper[n]).called("Время перезапуска" + number).wide(7));
  }
  return {.form = form,
          .content = column({words(form.Chk1[1].caption()).wide(26),
                             row({space(), grid(2, std::move(slots)), space()}), space(),
                             foot({use(form.CmdPrim).pointed_at().key("П"), use(form.CmdClose).key("З")})}),
          .on_enter = {{.to = form.CmdPrim}}};
}

WindowLayout layout(FrmISxodniki& form) {
  return {
      .form = form,
      .content = column(
          {frame_line(form.Label1, " зоны", {&form.T1, &form.T2, &form.T3}, "Номер", form.Command3, "з"),
           frame_line(form.Label2, " терминала", {&form.T4, &form.T5, &form.T6}, "Номер", form.Command4, "т"),
           use(form.Text1).called("Текст файла").grow(1),
           row({use(form.Command1).high(2.2).key("п").grow(1),
                use(form.Command2).high(2.2).key("е").grow(1)}),
           use(form.Label3).shown(Look::kValue).called("Прочитано").wide(20),
           row({use(form.Command5).called("Закрасить образец").high(2.2).key("C").grow(1),
                use(form.Label4).shown(Look::kSwatch).wide(4).called("Цвет"),
                use(form.Command6).high(2.2).key("M").grow(1)}),
           space()}),
      .on_enter = {{.to = form.Command3, .from = {&form.T1, &form.T2, &form.T3}},
                   {.to = form.Command4, .from = {&form.T4, &form.T5, &form.T6}},
                   {.to = form.Command1, .from = {&form.Text1}}}};
}

}  // namespace evac::desktop
