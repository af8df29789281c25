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
  Journal(CalendarState& calendar, const SettingsState& settings, EventLoop& loop, Files& files)
      : calendar_(calendar), settings_(settings), loop_(loop), files_(files) {}

  // Writes the present time and the text; before the first entry of a day in this run, the day's header.
  void JournalLine(std::string_view text);

  // Told of each line that reached the disk, the header too.
  Event<const std::string&> written;

 private:
  void append(const std::string& path, const std::string& line);

  CalendarState& calendar_;
  const SettingsState& settings_;
  EventLoop& loop_;
  Files& files_;
};

// "ПОНЕДЕЛЬНИК 5 Января 2026 года ", the form of the journal's header and of the clock line.
std::string long_date_text(const CalendarState& calendar, Date date);

}  // namespace evac
