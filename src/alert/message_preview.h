// The three message choices of the settings window: the length of the chosen file, and listening to it.
#pragma once

#include "alert/message_lists.h"
#include "platform/machine.h"

namespace evac {

class MessagePreview {
 public:
  struct Doors {
    const SettingsState& settings;
    Form5& form5;
    MessageLists& lists;
    Media& MP2;
    Files& files;
    Boxes& boxes;
  };
  explicit MessagePreview(const Doors& doors) : doors_(doors), choices_(rows(doors.form5)) {}

  // One of the choices, 1..3.
  void chosen(int n);
  void play(int n);
  void stop(int n);
  // As when the window was made: nothing plays.
  void reset();

 private:
  struct Choice {
    ComboBox* files;
    Label* length;
    Button *sound, *stop;
    std::string_view open_error;
  };
  using Choices = BoundedArray<Choice, 1, 3>;
  static Choices rows(Form5& form5);

  const Doors doors_;
  const Choices choices_;
};

}  // namespace evac
