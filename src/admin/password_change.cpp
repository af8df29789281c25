#include "admin/password_change.h"

#include "admin/password.h"
#include "platform/windows.h"
#include "store/admin_files.h"

namespace evac {

void PasswordChange::open() {
  begin_anew();
  doors_.form.windows().show_modal(doors_.form);
}

void PasswordChange::apply() {
  FrmPwR& form = doors_.form;
  std::string stored;
  if (read_password(doors_.folder, stored) != kNoError) return;
  if (!opens(stored, form.Txt1.text())) {
    doors_.boxes.message("Неверный пароль?", "Предупреждение");
    empty_boxes();
    form.Txt1.set_focus();
    return;
  }
  if (form.Txt2.text() == form.Txt3.text()) {
    if (write_password(doors_.folder, stored_new_password(form.Txt2.text())) != kNoError) return;
  } else {
    doors_.boxes.message("Введенный и подтвержденный пароли не совпадают?", "Внимание");
    form.Txt2.set_focus();
  }
  begin_anew();
}

void PasswordChange::leave() {
  doors_.form.windows().hide(doors_.form);
}

void PasswordChange::empty_boxes() {
  for (TextBox* box : doors_.form.boxes()) box->set_text("");
}

void PasswordChange::begin_anew() {
  empty_boxes();
  // Last: an emptied box has changed, and wakes the button.
  doors_.form.Cmd1.set_enabled(false);
}

}  // namespace evac
