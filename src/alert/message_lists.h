// The lists of message files and the lengths of the files, wherever a message is chosen.
#pragma once

#include "alert/alarm_tab.h"
#include "alert/alert_settings_form.h"
#include "model/system_model.h"
#include "platform/machine.h"
#include "store/folder_listers.h"

namespace evac {

class MessageLists {
 public:
  struct Doors {
    MessageState& messages;
    const SettingsState& settings;
    FolderListers& listers;
    AlarmTab& tab;
    Form5& form5;
    Media& MP2;
  };
  explicit MessageLists(const Doors& doors) : doors_(doors) {}

  // Reads the length of every message file, fills the lists, and shows the messages of the settings.
  void LoadMessageList();
  // Writes the length of the file of that name into the label; a name that no file bears leaves it.
  void show_length(std::string_view file, Label& label) const;

 private:
  // A combo box with the label of its message's length.
  struct Choice {
    ComboBox& files;
    Label& length;
  };
  void show_message(std::string_view file, std::initializer_list<Choice> choices);

  const Doors doors_;
};

inline constexpr std::string_view kNoMessage = "Не выбран";

}  // namespace evac
