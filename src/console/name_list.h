// The names of zones or of terminals: a window with a list of lines "number, tab, name", kept in a file of
// one line a record. A name goes to a control by the line's place in the list, not by its number.
#pragma once

#include "console/name_window.h"
#include "model/system_model.h"
#include "platform/machine.h"

namespace evac {

class NameList {
 public:
  // `shown_at` gets the names as tool tips; null when they stand nowhere but in the list.
  NameList(const SettingsState& settings, Files& files, Boxes& boxes, NameWindow& window,
           std::string (*file)(const SettingsState&), ControlArray<Button>* shown_at)
      : settings_(settings),
        files_(files),
        boxes_(boxes),
        window_(window),
        file_(file),
        shown_at_(shown_at) {}

  // Fills the list from the file.
  void load();
  // CmdAdd: the line of VS1 and Txt1, if no line has that number yet; sorts the list.
  void add();
  // CmdDel and a double click on the list: takes the chosen line off.
  void remove();
  // CmdSave.
  void save();

 private:
  static constexpr int kMostLines = 255;

  void sort();
  void ready_for_next();
  void show_name(int place, const std::string& line);

  const SettingsState& settings_;
  Files& files_;
  Boxes& boxes_;
  NameWindow& window_;
  std::string (*const file_)(const SettingsState&);
  ControlArray<Button>* const shown_at_;
};

}  // namespace evac
