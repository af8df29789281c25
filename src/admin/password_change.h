// Setting and changing the password.
#pragma once

#include "admin/password_forms.h"
#include "platform/machine.h"
#include "store/data_folder.h"

namespace evac {

class PasswordChange {
 public:
  struct Doors {
    FrmPwR& form;
    DataFolder& folder;
    Boxes& boxes;
  };
  explicit PasswordChange(const Doors& doors) : doors_(doors) {}

  // Shows the window until it is closed.
  void open();
  // Cmd1. A file that can't be read or written ends it in silence, with the boxes as they are.
  void apply();
  // Cmd2.
  void leave();
  // The button is awake from the first change in a box on.
  void wake() { doors_.form.Cmd1.set_enabled(true); }

 private:
  void empty_boxes();
  // Empty boxes and a button at rest.
  void begin_anew();

  const Doors doors_;
};

}  // namespace evac
