#include "journal/journal.h"

#include "model/text.h"
#include "store/code_page.h"

namespace evac {

void Journal::JournalLine(std::string_view text) {
  const WallTime now = doors_.loop.wall();
  const Date today = date_of(now);
  const std::string path = join(doors_.settings.protocol_base, "\\Protocol\\П-", medium_date_text(today));
  if (doors_.calendar.journal_day != today) {
    append(path, long_date_text(today));
    doors_.calendar.journal_day = today;
  }
  append(path, join(time_text(second_of_day(now)), " ", text));
}

void Journal::append(const std::string& path, const std::string& line) {
  // A line that is lost stops nobody.
  if (doors_.files.append(path, to_code_page(line) + "\r\n") == kNoError) written(line);
}

}  // namespace evac
