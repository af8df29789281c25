// The lists of message files and the lengths of the files, wherever a message is chosen.
#pragma once

#include "alert/alarm_tab.h"
#include "alert/alert_settings_form.h"
#include "model/system_model.h"
#include "platform/machine.h"

namespace evac {

class MessageLists {
 public:
  MessageLists(MessageState& messages, const SettingsState& settings, AlarmTab& tab, Form5& form5, Media& MP2)
      : messages_(messages), settings_(settings), tab_(tab), form5_(form5), MP2_(MP2) {}

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

  MessageState& messages_;
  const SettingsState& settings_;
  AlarmTab& tab_;
  Form5& form5_;
  Media& MP2_;
};

inline constexpr std::string_view kNoMessage = "Не выбран";

}  // namespace evac
