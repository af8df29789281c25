// What the rooms that offer messages may ask of the lists of message files.
#pragma once

#include <string_view>

#include "platform/controls.h"

namespace evac {

struct MessageCatalogue {
  virtual ~MessageCatalogue() = default;
  // Reads the length of every message file, fills the lists, and shows the messages of the settings.
  virtual void LoadMessageList() = 0;
  // Writes the length of the file of that name into the label; a name that no file bears leaves it.
  virtual void show_length(std::string_view file, Label& label) const = 0;
};

}  // namespace evac
