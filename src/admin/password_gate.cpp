#include "admin/password_gate.h"

#include "admin/password.h"
#include "model/text.h"
#include "platform/windows.h"
#include "store/admin_files.h"

namespace evac {

bool PasswordGate::ask() {
  PassOk_ = false;
  doors_.form.Txt1.set_text("");
  // Last: an emptied box has changed.
  doors_.form.CmdVPsW.set_enabled(false);
  doors_.form.windows().show_modal(doors_.form);
  return PassOk_;
}

void PasswordGate::apply() {
  std::string stored;
  if (const FileError error = read_password(doors_.folder, stored))
    throw Fault(static_cast<FaultNumber>(error),
                join("Unreadable file: ", doors_.folder.path(kPasswordFile)));
  PassOk_ = opens(stored, doors_.form.Txt1.text());
  if (PassOk_) {
    doors_.form.windows().hide(doors_.form);
    return;
  }
  doors_.boxes.message("Не правильный пароль", "Предупреждение");
  doors_.form.Txt1.set_text("");
  doors_.form.Txt1.set_focus();
}

void PasswordGate::cancel() {
  PassOk_ = false;
  doors_.form.windows().hide(doors_.form);
}

}  // namespace evac
