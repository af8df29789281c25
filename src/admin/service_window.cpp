#include "admin/service_window.h"

#include "model/text.h"
#include "platform/windows.h"
#include "store/admin_files.h"

namespace evac {

void ServiceWindow::open() {
  doors_.form.windows().show(doors_.form);
}

void ServiceWindow::send_zone() {
  const FrmISxodniki& form = doors_.form;
  doors_.link.SendZoneSet(Number(form.T1.text()), Number(form.T2.text()), Number(form.T3.text()));
}

void ServiceWindow::send_terminal() {
  const FrmISxodniki& form = doors_.form;
  doors_.link.SendTermSet(Number(form.T4.text()), Number(form.T5.text()), Number(form.T6.text()));
}

void ServiceWindow::write_text() {
  if (const FileError error = write_trial(doors_.folder, doors_.form.Text1.text()))
    doors_.boxes.message(write_fault("tmp.dat", error));
}

void ServiceWindow::read_text() {
  std::string text;
  if (const FileError error = read_trial(doors_.folder, text))
    doors_.boxes.message(read_fault(kTrialFile, error));
  else
    doors_.form.Label3.set_caption(text);
}

void ServiceWindow::paint() {
  doors_.form.Label4.set_back_color(Color::kTrial);
}

void ServiceWindow::ask() {
  const bool yes = doors_.boxes.ask("Выбрать ДА НЕТ???", "");
  doors_.boxes.message(yes ? "Выбрано ДА" : "Выбрано НЕТ");
}

}  // namespace evac
