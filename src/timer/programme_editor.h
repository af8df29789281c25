// The editor of the weekly programmes: what it shows when it opens, its rows, and the programmes' names. The
// preview stands apart.
#pragma once

#include "platform/listers.h"
#include "sound/message_catalogue.h"
#include "timer/programme_form.h"
#include "timer/programmes.h"

namespace evac {

class ProgrammeEditor {
 public:
  struct Doors {
    TimerState& timer;
    const SettingsState& settings;
    PlayerState& player;
    Form3& form;
    FileLister& program_files;
    ListBox& play_lists;
    MessageCatalogue& messages;
    Programmes& programmes;
    DataFolder& folder;
    Boxes& boxes;
  };
  explicit ProgrammeEditor(const Doors& doors) : doors_(doors) {}

  // M_tim: the programme of today, shown until the window is closed, which forgets what was not saved.
  void open();

  // Opt1 to Opt5, as 1..5.
  void kind_chosen(int kind);
  // CmbF1.
  void message_chosen();
  // CmdW(n).
  void toggle_day(int n);
  // The range of terminals never has its end before its beginning.
  void from_changed();
  void to_changed();

  void add_row();
  // Only the last row can go.
  void delete_row();
  // Lst1: the row goes into the controls. A row that has not been saved leaves them.
  void row_chosen();

  // CmdSas: the rows stay, and go into the new programme when it is saved.
  void add_programme();
  // CmdSave.
  void save();
  // CmbLstProg: loads that programme, for the engine too, and shows it. The next row added is number 1.
  void programme_chosen();

 private:
  void EdFill();
  void reset();
  void show_count(int rows);
  void take_device(const std::string& function);
  void light_day(int n, bool lit);
  // Asks for the name of a new programme, which is then shown; false when there is none.
  bool ask_name(std::string_view preset);

  const Doors doors_;
  std::int16_t ed_rows_ = 0;  // rows, and the number of the last one added
  std::int16_t ed_mask_ = 0;  // the days
  BoundedArray<bool, 1, 7> ed_day_;
};

}  // namespace evac
