// The password before a settings window.
#pragma once

#include "admin/password_forms.h"
#include "platform/machine.h"
#include "store/data_folder.h"

namespace evac {

class PasswordGate {
 public:
  struct Doors {
    FrmPsW& form;
    DataFolder& folder;
    Boxes& boxes;
  };
  explicit PasswordGate(const Doors& doors) : doors_(doors) {}

  // Asks until the password is right or the operator gives up; true when it was right.
  bool ask();
  // CmdVPsW. The file is read at each attempt; one that can't be read is a fault.
  void apply();
  // Cmd2.
  void cancel();
  // The button is awake from the first change in the box on.
  void wake() { doors_.form.CmdVPsW.set_enabled(true); }

 private:
  const Doors doors_;
  bool PassOk_ = false;
};

}  // namespace evac
