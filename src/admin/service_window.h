// The engineer's window: sends a frame with typed values, and tries a record file, a colour and a box.
#pragma once

#include "admin/service_form.h"
#include "link/link.h"
#include "platform/machine.h"
#include "store/data_folder.h"

namespace evac {

class ServiceWindow {
 public:
  struct Doors {
    FrmISxodniki& form;
    Link& link;
    DataFolder& folder;
    Boxes& boxes;
  };
  explicit ServiceWindow(const Doors& doors) : doors_(doors) {}

  // Not modal.
  void open();
  // Command3, Command4: one frame. A number too large for its field is a fault.
  void send_zone();
  void send_terminal();
  // Command1, Command2: the text to Tmp.dat, and from it. A file that fails is told in a box.
  void write_text();
  void read_text();
  // Command5, Command6.
  void paint();
  void ask();

 private:
  const Doors doors_;
};

}  // namespace evac
