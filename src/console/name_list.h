// The names of zones or of terminals: a window with a list of lines "number, tab, name", kept in a file of
// one line a record. A name goes to a control by the line's place in the list, not by its number.
#pragma once

#include "console/name_window.h"
#include "platform/machine.h"
#include "store/data_folder.h"

namespace evac {

class NameList {
 public:
  struct Doors {
    DataFolder& folder;
    Boxes& boxes;
    NameWindow& window;
    std::string_view file;  // by its name in the data folder
    ControlArray<Button>* shown_at;
    NumberedNames* kept = nullptr;  // the list as last loaded or saved, for who needs it
  };
  // `shown_at` gets the names as tool tips; null when they stand nowhere but in the list.
  explicit NameList(const Doors& doors) : doors_(doors) {}

  // Reads the names and shows their window until it is closed.
  void open();
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
  void keep();
  void show_name(int place, const std::string& line);

  const Doors doors_;
};

}  // namespace evac
