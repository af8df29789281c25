// The lists of message files and the lengths of the files, wherever a message is chosen.
#pragma once

#include "alert/alarm_tab.h"
#include "alert/alert_settings_form.h"
#include "model/system_model.h"
#include "platform/machine.h"
#include "sound/message_catalogue.h"
#include "store/folder_listers.h"
#include "timer/programme_form.h"

namespace evac {

class MessageLists : public MessageCatalogue {
 public:
  struct Doors {
    MessageState& messages;
    const SettingsState& settings;
    const TimerState& timer;
    FolderListers& listers;
    AlarmTab& tab;
    Form5& form5;
    Form3& form3;
    Media& MP2;
  };
  explicit MessageLists(const Doors& doors) : doors_(doors) {}

  void LoadMessageList() override;
  void show_length(std::string_view file, Label& label) const override;

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
