// The day's journal: a plain text file a day, a line an event. The file is opened, written and closed by each
// call, so that a line is in the file when the call returns. A journal that can't be written loses the entry
// and stops nobody.
#pragma once

#include <string>
#include <string_view>

#include "model/system_model.h"
#include "platform/event.h"
#include "platform/event_loop.h"
#include "platform/files.h"

namespace evac {

class Journal {
 public:
  struct Doors {
    CalendarState& calendar;
    const SettingsState& settings;
    EventLoop& loop;
    Files& files;
  };
  explicit Journal(const Doors& doors) : doors_(doors) {}

  // Writes the present time and the text; before the first entry of a day in this run, the day's header.
  void JournalLine(std::string_view text);

  // Told of each line that reached the disk, the header too.
  Event<const std::string&> written;

 private:
  void append(const std::string& path, const std::string& line);

  const Doors doors_;
};

}  // namespace evac
