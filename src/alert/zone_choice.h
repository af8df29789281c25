// The window in which the zones of a step are picked.
#pragma once

#include <string>

#include "alert/zone_choice_form.h"

namespace evac {

class ZoneChoice {
 public:
  explicit ZoneChoice(Form7& form7) : form7_(form7) {}

  // Shows the window on a zone text, which every save in it rewrites; returns when it is closed.
  void choose(std::string& zones);

  void zone_clicked();
  void all_clicked();
  void save();

 private:
  void load(std::string_view zones);

  Form7& form7_;
  std::string* zones_ = nullptr;
};

}  // namespace evac
