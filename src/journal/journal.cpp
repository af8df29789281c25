#include "journal/journal.h"

#include "model/text.h"
#include "store/code_page.h"

namespace evac {

std::string long_date_text(const CalendarState& calendar, Date date) {
  return join(calendar.WeekDayName[static_cast<std::size_t>(weekday_number(date))], " ", day_number(date),
              " ", calendar.MonthName[static_cast<std::size_t>(month_number(date))], " ", year_number(date),
              " года ");
}

void Journal::JournalLine(std::string_view text) {
  const WallTime now = loop_.wall();
  const Date today = date_of(now);
  const std::string path = join(settings_.protocol_base, "\\Protocol\\П-", medium_date_text(today));
  if (calendar_.journal_day != today) {
    append(path, long_date_text(calendar_, today));
    calendar_.journal_day = today;
  }
  append(path, join(time_text(second_of_day(now)), " ", text));
}

void Journal::append(const std::string& path, const std::string& line) {
  if (files_.append(path, to_code_page(line) + "\r\n") == kNoError) written(line);
}

}  // namespace evac
